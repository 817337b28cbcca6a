#include "widgets/ResourceImage.h"

#include "platform/foundation/ResourcePaths.h"

#include <QHash>

QPixmap resourceImage(const QString& name, qreal devicePixelRatio)
{
    static QHash<QString, QPixmap> known;
    const bool fine = devicePixelRatio > 1;
    const QString file = fine ? name + QStringLiteral("@2x") : name;
    const auto found = known.constFind(file);
    if (found != known.constEnd())
        return *found;
    QPixmap image(pathForResource(file, QStringLiteral("png")));
    image.setDevicePixelRatio(fine ? 2 : 1);
    known.insert(file, image);
    return image;
}
