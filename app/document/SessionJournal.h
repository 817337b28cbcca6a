// Keeps what a session has on its hands, so that it survives an unexpected end.
#pragma once

#include "app/document/SessionFolder.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <future>

/// Looks every second whether anything has changed, and writes it on a thread of its own: at most once in `interval`,
/// and nothing while all is as it was when the picture was opened or saved. Main thread.
class SessionJournal : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds kInterval = std::chrono::minutes(1);

    /// `state` tells what there is now; it is asked often and takes no time. Nothing is made in `home` before there is
    /// something to keep.
    SessionJournal(QString home, std::function<SessionState()> state, std::chrono::milliseconds interval = kInterval);
    /// Leaves on the disk what is there.
    ~SessionJournal() override;

    /// Goes on in the folder of a former session, whose state is the present one.
    void adopt(std::shared_ptr<SessionFolder> folder);
    /// What there is now need not be kept.
    void markClean();
    /// Does now what the timer would do sooner or later. `waits`: until it is on the disk.
    void update(bool waits = false);
    /// The session ends as it should.
    void remove();

private:
    /// Enough to tell two states apart. Keeps no picture alive, and knows it from a later one in the same place.
    struct Fingerprint {
        QByteArray values;
        std::vector<std::pair<std::string, std::weak_ptr<const ci::Node>>> pictures;

        Fingerprint() = default;
        explicit Fingerprint(const SessionState& state);
        bool operator==(const Fingerprint& other) const;
        bool isEmpty() const { return values.isEmpty(); }
    };
    bool isWriting() const;
    void finishWriting();

    const QString m_home;
    const std::function<SessionState()> m_state;
    const std::chrono::milliseconds m_interval;
    QTimer m_timer;
    QElapsedTimer m_sinceWriting;
    Fingerprint m_clean, m_written;
    std::shared_ptr<SessionFolder> m_folder;
    std::atomic<bool> m_stop = false;
    std::future<bool> m_writing;
};
