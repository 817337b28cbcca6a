// One session of the editor on the disk.
#pragma once

#include "platform/coreimage/CIImage.h"
#include "platform/coreimage/CIValue.h"

#include <QDateTime>
#include <QString>

#include <atomic>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What a session has on its hands: small values, and the pictures.
struct SessionState {
    CIDictionary values;
    std::map<std::string, CIImage> pictures;

    /// Nothing, or an empty dictionary, where there is none.
    CIValue value(const std::string& key) const;
    CIDictionary dictionary(const std::string& key) const;
};

/// A folder with the state of one session, locked for as long as the object lives. The lock goes away with the process,
/// however that ends: a folder that can be locked belongs to nobody any more.
///
/// Written to from one thread at a time.
class SessionFolder {
public:
    /// $XDG_STATE_HOME/lumivex, or its usual place.
    static QString stateHome();

    /// A new one in `home`. Null, with the reason logged, when it can't be made.
    static std::unique_ptr<SessionFolder> make(const QString& home);
    /// Those whose sessions have ended without taking them away, newest first. Empty ones are cleared away, damaged
    /// ones are set aside under another name, with a line in the log.
    static std::vector<std::unique_ptr<SessionFolder>> abandoned(const QString& home);

    ~SessionFolder();
    SessionFolder(const SessionFolder&) = delete;
    SessionFolder& operator=(const SessionFolder&) = delete;

    /// Replaces the state as a whole, or not at all: then, or once `stop` is set, the former one stays. Pictures that
    /// are there already aren't written again. False, with the reason logged, when that fails.
    bool write(const SessionState& state, const std::atomic<bool>& stop);
    /// The small values, checked; nothing when there are none, or when they are damaged.
    std::optional<CIDictionary> values() const;
    /// With pictures. Nothing when one of them is damaged. What is read counts as written.
    std::optional<SessionState> read();

    QDateTime lastWritten() const;
    const QString& path() const { return m_path; }
    /// Takes all of it away.
    void remove();

private:
    struct KnownPicture {
        std::weak_ptr<const ci::Node> node;
        QString file;
    };

    SessionFolder(QString path, int lock);
    static std::unique_ptr<SessionFolder> lock(const QString& path);
    QString fileOf(const CIImage& image, const std::atomic<bool>& stop);
    void setAside();

    QString m_path;
    int m_lock; // file descriptor
    int m_nextPicture = 0;
    std::vector<KnownPicture> m_known;
};
