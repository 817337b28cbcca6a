// The picture as it is turned.
#pragma once

#include "controls/crop/PictureCanvas.h"

#include <QLineF>

#include <optional>

/// Shows the picture turned, under a grid. A line that is dragged along the horizon becomes level, one along a wall
/// upright. Arrow keys turn by a tenth of a degree, with Shift by a whole one.
class StraightenCanvas : public PictureCanvas {
    Q_OBJECT

public:
    StraightenCanvas(const CIImage& picture, QWidget* parent);

    /// Radians, counterclockwise. With `fills` the empty corners are left out.
    void setAngle(double angle, bool fills);

signals:
    /// By so much the picture is to be turned further; radians.
    void turnWanted(double further);

protected:
    CIPoint shownSize() const override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void drawLine(QPainter& painter) const;

    double m_angle = 0;
    bool m_fills = true;
    std::optional<QLineF> m_line; // while it is drawn, widget coordinates
};
