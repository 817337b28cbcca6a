// The histogram of what is shown, while it changes.
#pragma once

#include "controls/picture/Histogram.h"

#include <QTimer>
#include <QWidget>

#include <functional>

/// For red, green and blue on the background of fields, in the present look.
std::array<QColor, 3> channelColors();
/// An area as high as the levels are frequent.
void drawLevels(QPainter& painter, const Histogram::Levels& levels, const QRectF& place, const QColor& color);

/// Curves of red, green and blue over an area of luma. A part of the image is counted, some 20 times a second at most,
/// after the image is on the screen: a moving slider doesn't feel it.
class HistogramView : public QWidget {
    Q_OBJECT
public:
    explicit HistogramView(QWidget* parent = nullptr);

    /// What is asked for the image, ARGB32_Premultiplied or null.
    void setSource(std::function<QImage()> source);
    /// The source has another image. Cheap; call it for every frame.
    void sourceChanged();

    const Histogram& histogram() const { return m_histogram; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void showEvent(QShowEvent*) override;

private:
    void count();
    void describe();

    std::function<QImage()> m_source;
    QTimer m_pause;
    Histogram m_histogram;
};
