// Pictures that controls are drawn with.
#pragma once

#include <QPixmap>
#include <QString>

/// The resource picture `name`.png, or `name`@2x.png for screens of more than one pixel a point; its size in points is
/// the same. Null when there is none. Kept after the first call.
QPixmap resourceImage(const QString& name, qreal devicePixelRatio);
