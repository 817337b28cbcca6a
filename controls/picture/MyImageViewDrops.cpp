// A picture file dropped on the picture view.
#include "controls/picture/MyImageView.h"
#include "controls/picture/MyImageViewPrivate.h"
#include "controls/picture/PictureScrollView.h"
#include "controls/picture/PointMark.h"
#include "widgets/DropFileTypes.h"

#include <QDragEnterEvent>
#include <QMimeData>
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
    const QString path = onlyDroppedFile(*event->mimeData());
    const bool copies = event->possibleActions() & Qt::CopyAction;
    if (!copies || path.isEmpty() || !isAcceptablePictureFile(path)) {
        event->ignore();
        return;
    }
    if (!dragEnter)
        showDropHighlight(true);
    dragEnter = true;
    event->setDropAction(Qt::CopyAction);
    event->accept();
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
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // With the picture itself among the data, the drag came from a program that means something else by the file.
    if (!controller || event->mimeData()->hasImage() || event->mimeData()->hasFormat("image/tiff"))
        return;
    const QString path = firstDroppedFile(*event->mimeData());
    if (!path.isEmpty())
        controller->takeDroppedFile(path);
}
