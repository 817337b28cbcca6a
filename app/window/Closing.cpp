#include "app/window/Closing.h"

#include "app/commands/Commands.h"
#include "app/document/Document.h"
#include "app/document/Opening.h"
#include "app/document/Saving.h"
#include "app/document/Session.h"
#include "app/window/MainWindow.h"
#include "app/window/StatusRow.h"
#include "widgets/AlertPanel.h"

#include <QApplication>
#include <QSessionManager>

Closing::Closing(const Parts& parts, std::function<void()> saveFavourites)
    : m_parts(parts)
    , m_saveFavourites(std::move(saveFavourites))
{
}

bool Closing::windowShouldClose() const
{
    return !m_parts.document.wasChanged() && m_parts.document.state() != Document::State::Working;
}

bool Closing::closesWindow()
{
    if (!windowShouldClose()) {
        const Commands& commands = m_parts.window.commands();
        if (m_parts.document.isIdle())
            m_parts.status.offer(tr("The window stays open: the picture has changes that are not saved."),
                {&commands.action("actionSave"), &commands.action("actionExport"), &commands.action("actionQuit")});
        return false;
    }
    if (!m_parts.document.isUnsaved())
        return true;
    // The program would end with its window, so it asks as it does then.
    QMetaObject::invokeMethod(this, &Closing::terminate, Qt::QueuedConnection);
    return false;
}

void Closing::windowWillClose()
{
    m_saveFavourites();
    applicationWillTerminate(); // the program ends with its window
}

Closing::TerminateReply Closing::applicationShouldTerminate()
{
    if (m_parts.document.state() == Document::State::Working)
        return TerminateReply::Cancel; // its thread works for the window
    m_parts.opening.cancel(); // what there is to save is the former picture
    if (m_parts.saving.isQuitting() || !m_parts.document.mayLoseWork())
        return TerminateReply::Now;
    const int answer = AlertPanel::Alert_DONTSAVECANCELMsgText(&m_parts.window, tr("Do you want to save changes?"),
        tr("Your changes will be lost if you choose don't save option."));
    if (answer == 1)
        m_parts.saving.saveAndQuit(); // asks to terminate again when it is done
    return answer <= 2 ? TerminateReply::Cancel : TerminateReply::Now; // below 1 nobody has answered: the session ends
}

void Closing::applicationWillTerminate()
{
    m_parts.window.saveFrame();
    if (m_parts.saving.isQuitting() && m_parts.document.mayLoseWork())
        m_parts.session.keepNow(); // the save was declined or cancelled, not the changes
    else
        m_parts.session.end();
}

void Closing::terminate()
{
    if (applicationShouldTerminate() == TerminateReply::Cancel)
        return;
    windowWillClose(); // the window closes with the program, though nobody tells it
    QCoreApplication::exit(); // quit() would ask the window once more, and it refuses while there are changes
}

void Closing::commitData(QSessionManager& session)
{
    if (!desktopSessionEnds([&] { return session.allowsInteraction(); }))
        session.cancel();
    session.release();
}

bool Closing::desktopSessionEnds(const std::function<bool()>& mayAsk)
{
    if (!m_parts.document.mayLoseWork())
        return true;
    // A sheet that is open waits for an answer of its own, and can't be asked another question.
    if (QApplication::activeModalWidget() || !mayAsk()) {
        m_parts.session.keepNow();
        return true;
    }
    if (applicationShouldTerminate() == TerminateReply::Cancel)
        return false;
    m_parts.session.markClean();
    return true;
}
