#include "app/Controller.h"
#include "app/MainWindow.h"
#include "app/PictureFiles.h"
#include "app/RecentFiles.h"
#include "controls/MyImageView.h"
#include "files/PictureMessages.h"
#include "platform/imageio/PictureMetadata.h"
#include "platform/imageio/PictureReader.h"
#include "ui_MainWindow.h"
#include "widgets/BackgroundWork.h"
#include "widgets/FilePanel.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

#include <chrono>
#include <future>

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

void Controller::openImg()
{
    auto* panel = new QFileDialog(&m_window, tr("Open Picture"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setWindowModality(Qt::WindowModal);
    panel->setNameFilters(pictureNameFilters());
    dressFilePanel(*panel);
    if (!m_lastFolder.isEmpty())
        panel->setDirectory(m_lastFolder);
    connect(panel, &QFileDialog::finished, this, [this, panel](int code) {
        m_lastFolder = panel->directory().absolutePath();
        openImgPanelDidEnd(code, panel->selectedFiles());
    });
    panel->open();
}

void Controller::openImgPanelDidEnd(int returnCode, const QStringList& files)
{
    if (returnCode == QDialog::Accepted && !files.isEmpty())
        openFile(files.first());
}

void Controller::openFile(const QString& path)
{
    setFilePath(path);
    const std::string file = QFile::encodeName(path).toStdString();
    auto whole = std::async(std::launch::async, [&file] { return readPicture(file); });
    showReduced(file);
    const CIImage image = pictureOf(whole.get(), path);
    setBackgroundImage(image);
    takeMetadataOf(image);
    if (image) {
        rememberRecentFile(path);
        markSessionClean();
    }
}

/// Large JPEG files are on screen in about half the time when they are decoded no larger than that; the whole picture
/// takes the place before anybody can act on it.
void Controller::showReduced(const std::string& file)
{
    constexpr double kLarge = 8e6; // px
    constexpr int kPatience = 50; // ms
    const Result<PictureInfo> info = readPictureInfo(file);
    if (!ciView->isVisible() || !info || info.value().formatName != "JPEG"
        || double(info.value().width) * info.value().height < kLarge)
        return;
    const int side = int(std::max(ciView->width(), ciView->height()) * ciView->devicePixelRatioF());
    const Result<CIBitmap> reduced = readPicture(file, {.maxSide = side});
    if (!reduced)
        return;
    const CIBitmap& bitmap = reduced.value();
    const double width = info.value().width, height = info.value().height;
    setBackgroundImage(CIImage::fromBitmap(bitmap)
                           .clampedToExtent()
                           .transformed(CIAffineTransform::scaling(width / bitmap.width(), height / bitmap.height()))
                           .cropped({0, 0, width, height}));
    ciView->waitForFrame(kPatience);
}

void Controller::openDroppedFile(const QString& path)
{
    if (path.isEmpty() || isWorkRunning() || QApplication::activeModalWidget())
        return;
    const CIImage image = readImage(path);
    if (!image) {
        showReadFailure(path);
        return;
    }
    setFilePath(path);
    undoPaste(image);
    m_undoManager.setActionName(tr("Open"));
    rememberRecentFile(path);
}

void Controller::setFilePath(const QString& path)
{
    _filePath = path;
    ImageInfo::setMyURL(path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path));
    if (!path.isEmpty())
        m_lastFolder = QFileInfo(path).absolutePath();
    updateWinTitle();
}

void Controller::showInfoPanel() { showPanel(*infoPanel); }

void Controller::updateWinTitle()
{
    QString title = QStringLiteral("Lumivex");
    if (!_filePath.isEmpty())
        title += QStringLiteral("::%1").arg(QFileInfo(_filePath).fileName());
    if (m_wasChanged)
        title += QStringLiteral("[*]"); // where the platform puts its mark
    m_window.setWindowTitle(title);
    m_window.setWindowModified(m_wasChanged);
}

CIImage Controller::readImage(const QString& path)
{
    m_readFailure.clear();
    if (path.isEmpty())
        return {};
    return pictureOf(readPicture(QFile::encodeName(path).toStdString()), path);
}

CIImage Controller::pictureOf(const Result<CIBitmap>& read, const QString& path)
{
    m_readFailure.clear();
    if (!read) {
        m_readFailure = shownPictureMessage(read.message());
        return {};
    }
    const CIImage image = CIImage::fromBitmap(read.value());
    m_formats.remember(image, read.value().format());
    m_lastRead = {image.node(), path};
    return image;
}

/// What comes from no file, as by a paste, has none. Read now, since a save may replace the file.
void Controller::takeMetadataOf(const CIImage& image)
{
    m_metadata.reset();
    if (image && image.node() == m_lastRead.picture.lock())
        m_metadata = PictureMetadata::ofFile(QFile::encodeName(m_lastRead.path).toStdString());
}

QStringList Controller::pictureNameFilters()
{
    return {tr("Pictures (%1)").arg(pictureFilePatterns()), tr("All files (*)")};
}

void Controller::showReadFailure(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    showMessage(m_readFailure.isEmpty() ? tr("%1 can't be read").arg(name)
                                        : tr("%1: %2", "file name, what is wrong").arg(name, m_readFailure));
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
    const CIRect extent = backgroundImage.extent();
    QString text = m_readFailure.isEmpty() ? tr("No picture") : m_readFailure;
    if (backgroundImage)
        text = tr("%1 × %2 px · %3", "width, height, color space and depth")
                   .arg(std::lround(extent.width))
                   .arg(std::lround(extent.height))
                   .arg(depthText(m_pictureFormat));
    ui.pictureInfoField->setText(text);
}

void Controller::rememberRecentFile(const QString& path) { RecentFiles::remember(path); }

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
