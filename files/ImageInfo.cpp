#include "files/ImageInfo.h"

#include "platform/imageio/LooseThread.h"
#include "platform/imageio/reader_process/ReaderProcess.h"
#include "ui_ImageInfo.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <mutex>

namespace {

using namespace std::chrono_literals;

constexpr auto kDelay = 20ms;

ImageInfo* sharedPanel = nullptr;

/// Keys with names in other languages. In English, `label` makes a name of any key.
[[maybe_unused]] constexpr const char* kNamedKeys[] = {
    QT_TRANSLATE_NOOP("PictureProperty", "PixelWidth"),
    QT_TRANSLATE_NOOP("PictureProperty", "PixelHeight"),
    QT_TRANSLATE_NOOP("PictureProperty", "ColorModel"),
    QT_TRANSLATE_NOOP("PictureProperty", "Orientation"),
    QT_TRANSLATE_NOOP("PictureProperty", "DPIWidth"),
    QT_TRANSLATE_NOOP("PictureProperty", "DPIHeight"),
    QT_TRANSLATE_NOOP("PictureProperty", "ProfileName"),
    QT_TRANSLATE_NOOP("PictureProperty", "Depth"),
    QT_TRANSLATE_NOOP("PictureProperty", "HasAlpha"),
    QT_TRANSLATE_NOOP("PictureProperty", "IsFloat"),
    QT_TRANSLATE_NOOP("PictureProperty", "IsProgressive"),
    QT_TRANSLATE_NOOP("PictureProperty", "FrameCount"),
    QT_TRANSLATE_NOOP("PictureProperty", "LoopCount"),
    QT_TRANSLATE_NOOP("PictureProperty", "DelayTime"),
    QT_TRANSLATE_NOOP("PictureProperty", "Make"),
    QT_TRANSLATE_NOOP("PictureProperty", "Model"),
    QT_TRANSLATE_NOOP("PictureProperty", "LensModel"),
    QT_TRANSLATE_NOOP("PictureProperty", "ExposureTime"),
    QT_TRANSLATE_NOOP("PictureProperty", "FNumber"),
    QT_TRANSLATE_NOOP("PictureProperty", "FocalLength"),
    QT_TRANSLATE_NOOP("PictureProperty", "ISOSpeedRatings"),
    QT_TRANSLATE_NOOP("PictureProperty", "Flash"),
    QT_TRANSLATE_NOOP("PictureProperty", "WhiteBalance"),
    QT_TRANSLATE_NOOP("PictureProperty", "DateTime"),
    QT_TRANSLATE_NOOP("PictureProperty", "DateTimeOriginal"),
    QT_TRANSLATE_NOOP("PictureProperty", "Artist"),
    QT_TRANSLATE_NOOP("PictureProperty", "Copyright"),
    QT_TRANSLATE_NOOP("PictureProperty", "ImageDescription"),
    QT_TRANSLATE_NOOP("PictureProperty", "Software"),
};

QTreeWidgetItem* itemOf(const PropertyNode& node)
{
    auto* item = new QTreeWidgetItem({node.key, node.val});
    item->setToolTip(1, node.val); // long values are cut
    for (const PropertyNode& child : node.children)
        item->addChild(itemOf(child));
    return item;
}

/// Differs when another file has taken the name; empty when there is none.
QString versionOf(const QUrl& url)
{
    const QFileInfo file(url.toLocalFile());
    return file.exists() ? file.lastModified().toString(Qt::ISODateWithMs) + QString::number(file.size()) : QString();
}

} // namespace

/// Shared with the thread, which may outlive the panel.
struct ImageInfo::Reading {
    std::mutex mutex; // held to set the panel, and to look at it from the thread
    ImageInfo* panel = nullptr; // null when nobody wants the result
};

ImageInfo::ImageInfo(QWidget* window)
    : QDialog(window, Qt::Tool)
{
    Ui::ImageInfo ui;
    ui.setupUi(this);
    mOView = ui.mOView;
    mFilePath = ui.mFilePath;
    mFileType = ui.mFileType;
    mFileSize = ui.mFileSize;
    mOView->setColumnWidth(0, 208);
    awakeFromNib();
}

ImageInfo::~ImageInfo()
{
    giveUpReading();
    if (sharedPanel == this)
        sharedPanel = nullptr;
}

void ImageInfo::awakeFromNib()
{
    if (!sharedPanel)
        sharedPanel = this;
    mUrl.clear();
    initTypes();
}

void ImageInfo::initTypes()
{
    setTypes({
        {QStringLiteral("public.png"), tr("PNG Image")},
        {QStringLiteral("com.compuserve.gif"), tr("GIF Image")},
        {QStringLiteral("public.jpeg"), tr("JPG Image")},
        {QStringLiteral("org.webmproject.webp"), tr("WebP Image")},
        {QStringLiteral("public.tiff"), tr("TIFF Image")},
        {QStringLiteral("com.microsoft.bmp"), tr("BMP Image")},
        {QStringLiteral("public.svg-image"), tr("SVG Image")},
        {QStringLiteral("public.camera-raw-image"), tr("RAW Image")},
        {QStringLiteral("com.adobe.pdf"), tr("PDF Image")},
    });
}

void ImageInfo::setMyURL(const QUrl& url)
{
    if (sharedPanel)
        QTimer::singleShot(kDelay, sharedPanel, [url] { sharedPanel->showURL(url); });
}

void ImageInfo::showURL(const QUrl& url)
{
    const QString version = versionOf(url);
    if (url == mUrl && (version.isEmpty() || version == m_version))
        return;
    giveUpReading();
    mUrl = url;
    m_version = version;
    if (mUrl.isEmpty()) {
        show(Failure{Reason::NoFile});
        return;
    }
    m_reading = std::make_shared<Reading>();
    m_reading->panel = this;
    imageio::runOnLooseThread([reading = m_reading, file = QFile::encodeName(url.toLocalFile()).toStdString()] {
        const Result<PictureFileProperties> read = ReaderProcess(file).readProperties();
        const std::lock_guard lock(reading->mutex);
        if (reading->panel)
            QMetaObject::invokeMethod(
                reading->panel,
                [reading, read] {
                    if (reading->panel)
                        reading->panel->show(read);
                },
                Qt::QueuedConnection);
    });
}

void ImageInfo::giveUpReading()
{
    if (!m_reading)
        return;
    imageio::giveUpLooseThread();
    const std::lock_guard lock(m_reading->mutex);
    m_reading->panel = nullptr;
}

void ImageInfo::show(const Result<PictureFileProperties>& read)
{
    const QString none = tr("n/a"), type = read ? QString::fromStdString(read->typeIdentifier) : none;
    mFilePath->setText(mUrl.isEmpty() ? none : mUrl.toLocalFile());
    mFileType->setText(m_types.value(type, type));
    mFileSize->setText(read ? tr("%1 bytes").arg(read->fileSize) : none);
    showTree(read ? propTree(read->properties) : std::vector<PropertyNode>());
}

void ImageInfo::showTree(std::vector<PropertyNode> tree)
{
    mTree = std::move(tree);
    mOView->clear();
    for (const PropertyNode& node : mTree)
        mOView->addTopLevelItem(itemOf(node));
    mOView->expandAll();
}

std::vector<PropertyNode> ImageInfo::propTree(const std::vector<PictureProperty>& properties)
{
    std::vector<PropertyNode> nodes;
    for (const PictureProperty& property : properties)
        nodes.push_back({label(QString::fromStdString(property.key)), QString::fromStdString(property.value),
            propTree(property.children)});
    return nodes;
}

QString ImageInfo::label(const QString& key)
{
    const QString translated = QCoreApplication::translate("PictureProperty", key.toUtf8().constData());
    if (translated != key)
        return translated;
    QString name = key;
    if (name.startsWith(QLatin1Char('{')) && name.endsWith(QLatin1Char('}')))
        name = name.mid(1, name.size() - 2);
    QString words;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const auto isUpper = [&](qsizetype at) { return at < name.size() && name[at].isUpper(); };
        const auto isLower = [&](qsizetype at) { return at < name.size() && name[at].isLower(); };
        // A word begins at a capital after a small letter, and at the last capital of several.
        const bool begins = isUpper(i) && ((i > 1 && isLower(i - 1)) || (i > 0 && isUpper(i - 1) && isLower(i + 1)));
        if (begins)
            words += QLatin1Char(' ');
        words += name[i];
    }
    if (!words.contains(QLatin1Char(':')) && words.size() > 1 && !words[1].isUpper()) // "dc:creator", "sRGB"
        words[0] = words[0].toUpper();
    return words;
}
