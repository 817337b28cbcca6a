// What of the edits survives an unexpected end.
#include "app/Controller.h"
#include "app/window/MainWindow.h"

#include <algorithm>

#include <QApplication>
#include <QSessionManager>

void Controller::saveEdits(SessionState& state, const CIImage& picture)
{
    state.values["mode"] = double(filerMode());
    for (const Mode* mode : m_modes.modes())
        mode->save(state, picture);
}

void Controller::restoreEdits(const SessionState& state)
{
    m_modes.selectMenuMode(1 + int(std::clamp(state.value("mode").toDouble(), 0.0, 2.0)));
    for (Mode* mode : m_modes.modes())
        mode->restore(state);
    adjustViewsAndTabs();
    updateView();
    updateMainBtnState();
    validateMenuItems();
}

void Controller::commitData(QSessionManager& session)
{
    if (!desktopSessionEnds([&] { return session.allowsInteraction(); }))
        session.cancel();
    session.release();
}

bool Controller::desktopSessionEnds(const std::function<bool()>& mayAsk)
{
    if (!m_document.mayLoseWork())
        return true;
    // A sheet that is open waits for an answer of its own, and can't be asked another question.
    if (QApplication::activeModalWidget() || !mayAsk()) {
        m_session.keepNow();
        return true;
    }
    if (applicationShouldTerminate() == TerminateReply::Cancel)
        return false;
    m_session.markClean();
    return true;
}
