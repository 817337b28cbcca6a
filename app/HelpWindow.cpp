#include "app/HelpWindow.h"

#include "platform/foundation/ResourcePaths.h"

#include <QPointer>
#include <QUrl>

HelpWindow::HelpWindow(QWidget* parent)
    : QTextBrowser(parent)
{
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Lumivex Help"));
    setAccessibleName(windowTitle());
    setOpenExternalLinks(true);
    resize(720, 640);
}

QString HelpWindow::firstPage() { return pathForResource(QStringLiteral("main"), QStringLiteral("html")); }

void HelpWindow::show(QWidget& mainWindow)
{
    static QPointer<HelpWindow> window;
    if (!window) {
        window = new HelpWindow(&mainWindow);
        window->setSource(QUrl::fromLocalFile(firstPage()));
    }
    window->setVisible(true);
    window->raise();
    window->activateWindow();
}
