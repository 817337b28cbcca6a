// The picture with the frame of what is kept.
#pragma once

#include "controls/crop/PictureCanvas.h"

#include <optional>

/// The frame is dragged by its corners and edges, moved from within, or drawn anew from outside, and from within while
/// it is as large as the picture. Arrow keys move it, with Ctrl its upper right corner; with Shift by ten pixels.
class CropCanvas : public PictureCanvas {
    Q_OBJECT

public:
    CropCanvas(const CIImage& picture, QWidget* parent);

    CIRect crop() const { return m_crop; }
    void setCrop(const CIRect& crop); // of whole pixels, inside the picture
    /// Width to height, 0 for free; the frame becomes the largest one of these proportions.
    void setProportions(double proportions);
    double proportions() const { return m_proportions; }

signals:
    void cropChanged();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    /// What a press takes hold of: sides of the frame, -1 for left and bottom, 1 for right and top.
    struct Grab {
        int side = 0, end = 0;
        bool isNew = false; // a new frame begins at the pressed place
    };
    Grab grabAt(const QPointF& place) const;
    Qt::CursorShape pointerFor(const Grab& grab) const;
    void drag(const QPointF& place);
    void drawHandles(QPainter& painter, const QRectF& frame) const;

    CIRect m_crop;
    double m_proportions = 0;
    std::optional<Grab> m_grab; // while the button is held
    QPointF m_pressed; // widget
    CIRect m_cropWhenPressed;
};
