// Messages inside the program that have no fixed receiver.
#pragma once

#include <QObject>

/// Says that a generated effect changed and its view should be drawn anew. Main thread only.
class NotificationCenter : public QObject {
    Q_OBJECT

public:
    static NotificationCenter& defaultCenter();

    /// Emits the signal of that name: "UpdateCustomView" or "UpdateOpenGLView". Other names are ignored.
    void postNotificationName(const QString& name);

signals:
    void UpdateCustomView();
    void UpdateOpenGLView();
};
