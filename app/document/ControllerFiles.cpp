#include "app/Controller.h"
#include "app/document/RecentFiles.h"
#include "app/window/MainWindow.h"
#include "ui_MainWindow.h"

#include <QAccessible>
#include <QFileInfo>
#include <QUrl>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto kMessageTime = 8s;

QString depthText(CIFormat format)
{
    switch (format) {
    case CIFormat::RGBA16:
        return Controller::tr("sRGB 16-bit");
    case CIFormat::RGBAf:
        return Controller::tr("sRGB 32-bit float");
    default:
        return Controller::tr("sRGB 8-bit");
    }
}

} // namespace

void Controller::openImg() { m_opening.runPanel(m_window); }

void Controller::pathChanged()
{
    const QString& path = m_document.filePath();
    ImageInfo::setMyURL(path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path));
    updateWinTitle();
}

void Controller::showInfoPanel() { showPanel(*infoPanel); }

void Controller::updateWinTitle()
{
    QString title = QStringLiteral("Lumivex");
    if (!m_document.filePath().isEmpty())
        title += QStringLiteral("::%1").arg(QFileInfo(m_document.filePath()).fileName());
    if (m_document.wasChanged())
        title += QStringLiteral("[*]"); // where the platform puts its mark
    m_window.setWindowTitle(title);
    m_window.setWindowModified(m_document.wasChanged());
}

void Controller::showReadFailure(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    showMessage(m_document.readFailure().isEmpty()
            ? tr("%1 can't be read").arg(name)
            : tr("%1: %2", "file name, what is wrong").arg(name, m_document.readFailure()));
}

/// For a while, in the status bar.
void Controller::showMessage(const QString& text)
{
    ui.pictureInfoField->setText(text);
    m_messageEnd.start(kMessageTime);
    QAccessibleEvent alert(ui.pictureInfoField, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Controller::updatePictureInfo()
{
    if (m_opening.isShown()) {
        ui.pictureInfoField->setText(openingText(m_opening.path()));
        return;
    }
    const CIRect extent = m_document.picture().extent();
    QString text = m_document.readFailure().isEmpty() ? tr("No picture") : m_document.readFailure();
    if (m_document.picture())
        text = tr("%1 × %2 px · %3", "width, height, color space and depth")
                   .arg(std::lround(extent.width))
                   .arg(std::lround(extent.height))
                   .arg(depthText(m_document.format()));
    ui.pictureInfoField->setText(text);
}

void Controller::fillRecentMenu()
{
    ui.menuRecent->clear();
    const QStringList paths = RecentFiles::list(), titles = RecentFiles::titles(paths);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        QString title = titles[i];
        QAction* item = ui.menuRecent->addAction(title.replace(QLatin1Char('&'), QLatin1String("&&")));
        item->setStatusTip(paths[i]);
        connect(item, &QAction::triggered, this, [this, path = paths[i]] { openFile(path); });
    }
    if (paths.isEmpty())
        ui.menuRecent->addAction(tr("No Pictures Yet"))->setEnabled(false);
    ui.menuRecent->addSeparator();
    QAction* clear = ui.menuRecent->addAction(tr("&Clear Menu"));
    clear->setEnabled(!paths.isEmpty());
    connect(clear, &QAction::triggered, this, [] { RecentFiles::clear(); });
}
