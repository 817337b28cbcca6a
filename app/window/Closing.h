// How the window and the program end.
#pragma once

#include <QObject>

#include <functional>

class Document;
class MainWindow;
class Opening;
class QSessionManager;
class Saving;
class Session;
class StatusRow;

/// Asks before anything unsaved is lost, and writes what outlives the program.
class Closing : public QObject {
    Q_OBJECT

public:
    enum class TerminateReply { Now, Cancel };
    /// All of it outlives this.
    struct Parts {
        MainWindow& window;
        Document& document;
        Opening& opening;
        Saving& saving;
        Session& session;
        StatusRow& status;
    };
    Closing(const Parts& parts, std::function<void()> saveFavourites);

    bool windowShouldClose() const;
    /// The same, or says why not, or asks.
    bool closesWindow();
    void windowWillClose();
    TerminateReply applicationShouldTerminate();
    void applicationWillTerminate();
    void terminate();
    /// The desktop's session ends.
    void commitData(QSessionManager& session);
    /// The same question as when the window closes, if it may be asked; false when the desktop's session is to go on.
    bool desktopSessionEnds(const std::function<bool()>& mayAsk);

private:
    Parts m_parts;
    std::function<void()> m_saveFavourites;
};
