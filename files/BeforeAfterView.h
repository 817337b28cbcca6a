// Two pictures side by side, pixel by pixel.
#pragma once

#include "platform/coreimage/CIBitmap.h"

#include <QWidget>

/// Shows the same part of both, each pixel as one of the screen's. The part is chosen by dragging, by the wheel or by
/// the arrow keys.
class BeforeAfterView : public QWidget {
    Q_OBJECT

public:
    explicit BeforeAfterView(QWidget* parent);

    /// Plain bitmaps of one size; null ones show nothing. The part stays where it was.
    void setPictures(const CIBitmap& before, const CIBitmap& after);

    QSize sizeHint() const override { return {560, 320}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRect half(int index) const;
    void paintHalf(QPainter& painter, int index, const CIBitmap& bitmap, const QString& caption) const;
    void moveBy(QPointF points);

    CIBitmap m_before, m_after;
    QPointF m_center{0.5, 0.5}; // of the part, in units of the picture
    QPoint m_dragged;
};
