// What survives an unexpected end, and what other processes ask for.
#pragma once

#include "app/document/SessionFolder.h"

#include <QCoreApplication>

#include <functional>
#include <memory>
#include <vector>

class Document;
class Opening;
class QWidget;
class SessionJournal;

/// Keeps what is being edited on the disk, brings it back, and opens what other processes hand over. Main thread.
class Session {
    Q_DECLARE_TR_FUNCTIONS(Session)

public:
    /// Of what is being made of the picture, which others know.
    struct Edits {
        std::function<void(SessionState& state, const CIImage& picture)> save; // into `state`, which has the picture
        std::function<void(const SessionState& state)> restore; // onto the picture, which is there
    };

    Session(Document& document, Opening& opening, QWidget* window, Edits edits);
    ~Session();

    /// From now on, what is being edited is kept in the folder `home`, at most a minute old.
    void startJournal(const QString& home);
    /// What there is now is in its file.
    void markClean();
    /// Nobody can be asked any more: the next start does it.
    void keepNow();
    /// The program ends as it should.
    void end();

    /// Brings back a session that ended unexpectedly, if there is one and the user wants it. A picture that was opened
    /// meanwhile, and further sessions, get windows of their own.
    void offerRestore(const QString& home);
    SessionState state();
    void restore(const SessionState& state);

    /// The first one here, unless the user would lose changes and doesn't agree; the others in windows of their own.
    void openFilesFromOutside(const QStringList& paths);
    /// Starts a process for it; an empty path opens the window alone.
    static void openInNewWindow(const QString& path);

private:
    using FolderPtr = std::shared_ptr<SessionFolder>;
    using FoldersPtr = std::shared_ptr<std::vector<FolderPtr>>;

    void offer(const FoldersPtr& folders);
    bool asksToRestore(const CIDictionary& values);
    void read(const FolderPtr& folder, const FoldersPtr& others);

    Document& m_document;
    Opening& m_opening;
    QWidget* m_window;
    Edits m_edits;
    std::unique_ptr<SessionJournal> m_journal;
};
