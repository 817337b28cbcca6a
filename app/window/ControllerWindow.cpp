#include "app/commands/Commands.h"
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "effects2d/customEffImageView.h"
#include "platform/foundation/Pasteboard.h"
#include "widgets/AlertPanel.h"
#include "widgets/DocPageControl.h"

#include <QApplication>

void Controller::windowWillClose()
{
    saveFavorites();
    applicationWillTerminate(); // the program ends with its window
}

void Controller::windowDidResize()
{
    for (const Mode* mode : m_modes.modes()) {
        mode->strip().liveResizeDone();
        if (ZoomedCanvas* canvas = mode->canvas())
            canvas->resizeViewBoundCenter(true, 3);
    }
}

void Controller::windowDidBecomeVisible()
{
    m_zooming.fit(); // only now the picture's area has its size
}

void Controller::keyUp(int key)
{
    if (key == Qt::Key_Escape)
        escapeEffect();
}

void Controller::applicationDidFinishLaunching()
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            applicationDidBecomeActive();
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, &Controller::commitData);
}

void Controller::applicationDidBecomeActive() { updateMainBtnState(); }

Controller::TerminateReply Controller::applicationShouldTerminate()
{
    if (m_document.state() == Document::State::Working)
        return TerminateReply::Cancel; // its thread works for the window
    cancelOpening(); // what there is to save is the former picture
    if (m_saving.isQuitting() || !m_document.mayLoseWork())
        return TerminateReply::Now;
    const int answer = AlertPanel::Alert_DONTSAVECANCELMsgText(&m_window, tr("Do you want to save changes?"),
        tr("Your changes will be lost if you choose don't save option."));
    if (answer == 1)
        m_saving.saveAndQuit(); // asks to terminate again when it is done
    return answer <= 2 ? TerminateReply::Cancel : TerminateReply::Now; // below 1 nobody has answered: the session ends
}

bool Controller::windowShouldClose() const
{
    return !m_document.wasChanged() && m_document.state() != Document::State::Working;
}

bool Controller::closesWindow()
{
    if (!windowShouldClose()) {
        if (m_document.isIdle())
            m_status.offer(tr("The window stays open: the picture has changes that are not saved."),
                {&m_window.commands().action("actionSave"), &m_window.commands().action("actionExport"),
                    &m_window.commands().action("actionQuit")});
        return false;
    }
    if (!m_document.isUnsaved())
        return true;
    // The program would end with its window, so it asks as it does then.
    QMetaObject::invokeMethod(this, &Controller::terminate, Qt::QueuedConnection);
    return false;
}

void Controller::terminate()
{
    if (applicationShouldTerminate() == TerminateReply::Cancel)
        return;
    saveFavorites(); // the window closes with the program, though nobody tells it
    applicationWillTerminate();
    QCoreApplication::exit(); // quit() would ask the window once more, and it refuses while there are changes
}
