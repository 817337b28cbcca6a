// The scroller of lists and pictures.
#pragma once

#include "widgets/ScrollerLayout.h"

#include <QPixmap>
#include <QScrollBar>

/// Draws itself from resource pictures: a slot with a knob between two arrows. Draws only its ground when there is
/// nothing to scroll.
class CustomScroller : public QScrollBar {
    Q_OBJECT
public:
    enum class Part { None, DecrementPage, Knob, IncrementPage, DecrementLine, IncrementLine, KnobSlot };

    explicit CustomScroller(Qt::Orientation orientation, QWidget* parent = nullptr);
    /// Gives an area the program's scrollers.
    template <class ScrollArea>
    static void installIn(ScrollArea& area)
    {
        area.setVerticalScrollBar(new CustomScroller(Qt::Vertical));
        area.setHorizontalScrollBar(new CustomScroller(Qt::Horizontal));
    }

    /// Points across: the width of its arrow picture.
    static int scrollerWidth();
    static int scrollerWidthForControlSize(int) { return scrollerWidth(); }

    /// How much of the document is visible; 1 when all of it is.
    double knobProportion() const;
    /// Scrolls to `value` (0 to 1) in a document of which `proportion` is visible.
    void setFloatValueKnobProportion(float value, float proportion);
    QRectF rectForPart(Part part) const;
    Part partAt(QPointF point) const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;
    void sliderChange(SliderChange change) override;

private:
    ScrollerLayout layoutOfParts() const;
    QPixmap picture(const char* upright, const char* level) const;
    void drawBar(
        QPainter& painter, const QRectF& place, const QPixmap& start, const QPixmap& middle, const QPixmap& end) const;
    void drawKnobSlot(QPainter& painter) const;
    void drawKnob(QPainter& painter) const;
    void drawArrowHighlight(QPainter& painter, Part arrow, bool highlight) const;
    void trackScrollButtons(Part arrow);
    double along(QPointF point) const;

    bool isVertical;
    bool hilitePrev = false, hiliteNext = false; // an arrow is held down
    float minKnobHeight = 28, minKnobWidth = 28; // points
    double m_grabbed = -1; // where on the knob the mouse holds it; negative when it doesn't
};
