#include "app/Controller.h"
#include "app/MainWindow.h"
#include "controls/MyImageView.h"
#include "platform/foundation/Pasteboard.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSessionManager>

void Controller::windowWillClose()
{
    applicationWillTerminate(); // the program ends with its window
}

void Controller::windowDidResize() { ciView->resizeViewBoundCenter(true, 3); }

void Controller::windowDidUpdate()
{
    if (!needsUpdate)
        return;
    needsUpdate = false;
    rebuildPanel();
}

void Controller::windowDidBecomeVisible()
{
    fitZoom(); // only now the picture's area has its size
}

void Controller::keyUp(int key)
{
    if (key == Qt::Key_Escape)
        clearAllAndUpdate();
}

void Controller::applicationDidFinishLaunching()
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            applicationDidBecomeActive();
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
        if (m_wasChanged && session.allowsInteraction()) {
            if (applicationShouldTerminate() == TerminateReply::Cancel)
                session.cancel();
            session.release();
        }
    });
}

void Controller::applicationDidBecomeActive() { updateMainBtnState(); }

/// 1 to save, 2 to stay, 3 to lose the changes.
int Controller::askToSaveChanges()
{
    QMessageBox alert(&m_window);
    alert.setWindowModality(Qt::WindowModal);
    alert.setIcon(QMessageBox::Warning);
    alert.setText(tr("Do you want to save changes?"));
    alert.setInformativeText(tr("Your changes will be lost if you choose don't save option."));
    QPushButton* dontSave = alert.addButton(tr("Don't Save"), QMessageBox::DestructiveRole);
    QPushButton* cancel = alert.addButton(tr("Cancel"), QMessageBox::RejectRole);
    alert.setDefaultButton(cancel);
    alert.setEscapeButton(cancel);
    alert.exec();
    return alert.clickedButton() == dontSave ? 3 : 2;
}

Controller::TerminateReply Controller::applicationShouldTerminate()
{
    if (m_wasChanged && askToSaveChanges() == 2)
        return TerminateReply::Cancel;
    return TerminateReply::Now;
}

void Controller::terminate()
{
    if (applicationShouldTerminate() == TerminateReply::Cancel)
        return;
    applicationWillTerminate();
    QCoreApplication::exit(); // quit() would ask the window once more, and it refuses while there are changes
}
