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

/// The desktop's session ends: the same question as when the window closes.
void Controller::commitData(QSessionManager& session)
{
    if (!m_document.mayLoseWork())
        return;
    // A sheet that is open waits for an answer of its own, and can't be asked another question.
    if (QApplication::activeModalWidget() || !session.allowsInteraction()) {
        m_session.keepNow();
        return;
    }
    if (applicationShouldTerminate() == TerminateReply::Cancel)
        session.cancel();
    else
        m_session.markClean();
    session.release();
}
