// A picture file dropped on the picture view.
#include "controls/picture/MyImageView.h"
#include "controls/picture/MyImageViewPrivate.h"
#include "controls/picture/PictureScrollView.h"
#include "controls/picture/PointMark.h"
#include "widgets/DropFileTypes.h"
#include "widgets/PictureDrop.h"

#include <QDragEnterEvent>
#include <QPainter>

namespace {

/// Lies over a part of the window and lets the mouse through.
class DropHighlight : public QWidget {
public:
    explicit DropHighlight(QWidget* area)
        : QWidget(area)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setGeometry(area->rect());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        drawCGRect(painter, dropHighlightRect(rect()));
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

void MyImageView::showDropHighlight(bool shown)
{
    delete d->dropHighlight;
    if (!shown)
        return;
    d->dropHighlight = new DropHighlight(highlightedArea(scrollView()));
    d->dropHighlight->show();
}

void MyImageView::dragEnterEvent(QDragEnterEvent* event)
{
    if (!takeDrag(*event, onlyDroppedFile(*event->mimeData()), isAcceptablePictureFile))
        return;
    if (!dragEnter)
        showDropHighlight(true);
    dragEnter = true;
}

void MyImageView::dragLeaveEvent(QDragLeaveEvent*)
{
    dragEnter = false;
    showDropHighlight(false);
    update();
}

void MyImageView::dropEvent(QDropEvent* event)
{
    dragEnter = false;
    showDropHighlight(false);
    const QString path = takeDroppedPicture(*event);
    if (controller && !path.isEmpty())
        controller->takeDroppedFile(path);
}
