// One program for all pictures that are opened from outside.
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The program on the session bus, by the desktop's convention for applications (org.freedesktop.Application). The
/// first process takes the name, later ones hand over what they were started with. Without a bus, every process is on
/// its own. Main thread.
class OneInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// To be made before the QApplication, which takes the token that the desktop has given to this start.
    OneInstance();
    ~OneInstance() override;

    enum class Start {
        First, // this process answers from now on
        HandedOver, // another process has taken the files: there is nothing left to do
        Alone, // no bus, or nobody answers
    };
    /// `paths` are absolute; none asks the other process to come to the front.
    Start start(const QStringList& paths);

signals:
    /// Somebody opens files, or (without any) wants to see the window. The call has been answered already.
    void requested(const QStringList& paths);

public slots: // the interface on the bus
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The program has no actions there; its window comes to the front.
    void ActivateAction(const QString& action, const QVariantList& parameters, const QVariantMap& platformData);

private:
    bool handOver(const QStringList& paths) const;
    void request(const QStringList& paths, const QVariantMap& platformData);

    const QByteArray m_token, m_startupId;
    bool m_isOnBus = false;
};
