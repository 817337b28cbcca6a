#include "app/Controller.h"
#include "app/document/RecentFiles.h"
#include "app/window/MainWindow.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QUrl>

void Controller::openImg() { m_opening.runPanel(m_window); }

void Controller::pathChanged()
{
    const QString& path = m_document.filePath();
    ImageInfo::setMyURL(path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path));
    updateWinTitle();
}

void Controller::updateWinTitle()
{
    QString title = QStringLiteral("Lumivex");
    if (!m_document.filePath().isEmpty())
        title += QStringLiteral("::%1").arg(
            QFileInfo(m_document.filePath()).fileName().replace("[*]", "[*][*]")); // twice stands for itself
    if (m_document.mayLoseWork())
        title += QStringLiteral("[*]"); // where the platform puts its mark
    m_window.setWindowTitle(title);
    m_window.setWindowModified(m_document.mayLoseWork());
}

void Controller::showReadFailure(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    showMessage(m_document.readFailure().isEmpty()
            ? tr("%1 can't be read").arg(name)
            : tr("%1: %2", "file name, what is wrong").arg(name, m_document.readFailure()));
}

void Controller::fillRecentMenu(QMenu& menu)
{
    menu.clear();
    const QStringList paths = RecentFiles::list(), titles = RecentFiles::titles(paths);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        QString title = titles[i];
        QAction* item = menu.addAction(title.replace(QLatin1Char('&'), QLatin1String("&&")));
        item->setStatusTip(paths[i]);
        connect(item, &QAction::triggered, this, [this, path = paths[i]] { openFile(path); });
    }
    if (paths.isEmpty())
        menu.addAction(tr("No Pictures Yet"))->setEnabled(false);
    menu.addSeparator();
    QAction* clear = menu.addAction(tr("&Clear Menu"));
    clear->setEnabled(!paths.isEmpty());
    connect(clear, &QAction::triggered, this, [] { RecentFiles::clear(); });
}
