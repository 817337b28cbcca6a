// The frame around the window while a picture file is dragged over the view.
#include "controls/picture/MyImageView.h"
#include "controls/picture/MyImageViewPrivate.h"
#include "controls/picture/PictureScrollView.h"

#include <QPainter>

namespace {

/// Lies over a part of the window and lets the mouse through. A child of the window itself: the part may be a splitter,
/// to which each child is a pane.
class DropHighlight : public QWidget {
public:
    explicit DropHighlight(QWidget* area)
        : QWidget(area->window())
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setGeometry(QRect(area->mapTo(area->window(), QPoint()), area->size()));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        // Inset by 10; then the top another 8 lower, the bottom 10 higher, the right edge 15 to the left.
        ControlledCanvas::drawCGRect(painter, rect().adjusted(10, 18, -25, -20));
    }
};

/// The third widget above `widget`, or the topmost one below that.
QWidget* highlightedArea(QWidget* widget)
{
    QWidget* area = widget;
    for (int i = 0; i < 3 && area->parentWidget() && !area->isWindow(); ++i)
        area = area->parentWidget();
    return area;
}

} // namespace

void MyImageView::draggedOver(bool over)
{
    delete d->dropHighlight;
    if (!over)
        return;
    d->dropHighlight = new DropHighlight(highlightedArea(scrollView()));
    d->dropHighlight->show();
}
