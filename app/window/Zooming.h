// How large the picture is shown.
#pragma once

#include <QObject>
#include <QSizeF>

#include <functional>
#include <vector>

class QLabel;
class QSlider;
class QWidget;
class ZoomedCanvas;

/// Keeps the slider, the field that tells the zoom in percent, and the canvas in step. A double click on the field goes
/// to actual size, and from there to the whole picture. A picture that was fitted stays so while the area changes its
/// size, until the user zooms.
class Zooming : public QObject {
    Q_OBJECT

public:
    struct Canvas {
        ZoomedCanvas& canvas;
        QSizeF withoutPicture; // what it shows then, in picture pixels
    };
    struct Source {
        std::function<ZoomedCanvas*()> canvas; // the one that is seen; null when what is seen can't be zoomed
        std::function<QSizeF()> pictureSize; // px
    };

    /// `area` is the part of the window in which a whole picture is to fit.
    Zooming(QSlider& slider, QLabel& field, QWidget& area, std::vector<Canvas> canvases, Source source);

    bool isPossible() const { return m_source.canvas(); }
    /// Moves the slider only.
    void setZoom(float zoom);
    /// The same when the user has zoomed on the canvas itself.
    void takeZoom(float zoom);
    /// Slider and field tell what is seen.
    void show();
    /// Lays out what is seen, and shows its zoom.
    void layOut();
    /// Another canvas is seen; without one, slider and `control`, the part of the window around it, are out of use.
    void showIn(QWidget& control);
    /// What is seen gets the slider's zoom.
    void takeSlider();
    void zoomTo(float zoom); // within what the slider can say
    void zoomBy(double delta);
    void step(int direction); // as a wheel does: in when positive, else out
    /// The whole picture, also in what isn't seen now; who calls this draws anew anyway.
    void fit();
    void zoomToFit();

signals:
    /// What is seen is to be drawn anew.
    void zoomed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showPercent();
    void fitAgain();

    QSlider& m_slider;
    QLabel& m_field;
    QWidget& m_area;
    std::vector<Canvas> m_canvases;
    Source m_source;
    bool m_isFitted = false;
};
