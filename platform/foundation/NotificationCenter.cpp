#include "platform/foundation/NotificationCenter.h"

NotificationCenter& NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::postNotificationName(const QString& name)
{
    if (name == QLatin1String("UpdateCustomView"))
        emit UpdateCustomView();
    else if (name == QLatin1String("UpdateOpenGLView"))
        emit UpdateOpenGLView();
}
