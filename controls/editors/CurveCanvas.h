// Curves whose points are dragged.
#pragma once

#include "controls/picture/Histogram.h"
#include "widgets/AccessibleCanvas.h"

#include <optional>
#include <vector>

#include <QPointF>
#include <QWidget>

/// Curves in a square from 0 to 1, dark to light across and up, over a histogram. One of them has points.
///
/// A drag moves a point. Tab goes from point to point, the arrow keys move the selected one (with Shift ten times as
/// far), Delete or a double click asks for its standard place, Escape selects none. What happens from `began` to
/// `ended` is one gesture.
class CurveCanvas : public QWidget, public AccessibleCanvas {
    Q_OBJECT
public:
    struct Line {
        std::vector<double> heights; // at even distances
        QColor color;
        bool isEdited = true; // drawn stronger
    };

    explicit CurveCanvas(QWidget* parent);

    void setLines(std::vector<Line> lines);
    void setPoints(std::vector<QPointF> points, const QColor& color);
    void setHistogram(const Histogram::Levels& levels, const QColor& color);

    const std::vector<QPointF>& points() const { return m_points; }
    std::optional<std::size_t> selected() const { return m_selected; }
    /// Widget coordinates.
    QPointF toWidget(const QPointF& place) const;

    QList<CanvasPoint> canvasPoints() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override { return {220, heightForWidth(220)}; }

signals:
    void began();
    /// The user wants the point there; `setPoints` tells where it is.
    void moved(std::size_t index, const QPointF& to);
    void resetWanted(std::size_t index);
    void ended();
    void selectionChanged();

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;
    void hideEvent(QHideEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    bool focusNextPrevChild(bool next) override;

private:
    QRectF plot() const;
    QPointF toPlace(const QPointF& widget) const;
    std::optional<std::size_t> pointAt(const QPointF& widget) const;
    void select(std::optional<std::size_t> index);
    void move(const QPointF& to);
    bool moveByKey(int key, bool far);
    void begin();
    void end();
    void drawPlot(QPainter&) const;
    void drawPoints(QPainter&) const;

    std::vector<Line> m_lines;
    std::vector<QPointF> m_points;
    QColor m_pointColor, m_histogramColor;
    Histogram::Levels m_levels{};
    std::optional<std::size_t> m_selected, m_hovered;
    QPointF m_grip; // from the mouse to the point
    bool m_dragging = false, m_changing = false;
};
