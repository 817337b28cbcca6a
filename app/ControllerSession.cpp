// What other processes ask for.
#include "app/Controller.h"
#include "app/MainWindow.h"
#include "platform/foundation/Log.h"
#include "widgets/AlertPanel.h"
#include "widgets/BackgroundWork.h"

#include <QApplication>
#include <QFileInfo>
#include <QProcess>

void Controller::openFilesFromOutside(const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    if (isWorkRunning() || QApplication::activeModalWidget())
        openInNewWindow(paths.first());
    else if (!m_wasChanged
        || AlertPanel::Alert_OKCancelMsgText(&m_window,
               tr("Do you want to open “%1” here?").arg(QFileInfo(paths.first()).fileName()),
               tr("Your changes will be lost if you did not save them."))
            == 1)
        openFile(paths.first());
    for (const QString& path : paths.mid(1))
        openInNewWindow(path);
}

void Controller::openInNewWindow(const QString& path)
{
    QStringList arguments{QStringLiteral("--new-window")};
    if (!path.isEmpty())
        arguments << QStringLiteral("--") << path;
    if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
        qCWarning(lumivexLog, "No new window can be opened.");
}
