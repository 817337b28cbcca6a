#include "widgets/PictureDrop.h"

#include "widgets/DropFileTypes.h"

#include <QDragEnterEvent>
#include <QMimeData>

namespace {

void takeAsCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

bool takeDrag(QDragEnterEvent& event, const QString& path, bool (*isWanted)(const QString& path))
{
    const bool isTaken = event.possibleActions() & Qt::CopyAction && !path.isEmpty() && isWanted(path);
    if (isTaken)
        takeAsCopy(event);
    else
        event.ignore();
    return isTaken;
}

QString takeDroppedPicture(QDropEvent& event)
{
    takeAsCopy(event);
    const QMimeData& data = *event.mimeData();
    return data.hasImage() || data.hasFormat(QStringLiteral("image/tiff")) ? QString() : firstDroppedFile(data);
}
