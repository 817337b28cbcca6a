#include "widgets/FileThumbnails.h"

#include "platform/coreimage/CIColorProfile.h"
#include "platform/imageio/LooseThread.h"
#include "platform/imageio/PictureReader.h"
#include "widgets/DropFileTypes.h"

#include <chrono>
#include <filesystem>
#include <mutex>
#include <utility>
#include <vector>

#include <QColorSpace>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QImage>
#include <QPainter>
#include <QTreeView>

namespace {

constexpr int kSide = 40; // points
constexpr int kMostIcons = 500;

/// In the middle of a square, at the screen's resolution.
QIcon iconOf(const QImage& picture, double ratio)
{
    const int side = int(kSide * ratio);
    QPixmap square(side, side);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRectF place({}, QSizeF(picture.size().scaled(square.size(), Qt::KeepAspectRatio)));
    place.moveCenter(QRectF(square.rect()).center());
    painter.drawImage(place, picture);
    painter.end();
    square.setDevicePixelRatio(ratio);
    return square;
}

/// Null for what can't be read.
QImage smallPicture(const QString& path, int side, const std::atomic<bool>& cancelled)
{
    const Result<CIBitmap> read = readPicture(std::filesystem::path(QFile::encodeName(path).toStdString()),
        {.maxSide = side, .timeLimit = std::chrono::seconds(5), .cancelled = &cancelled});
    if (!read || read->format() == CIFormat::RGBAf)
        return {};
    const bool isOpaque = read->alpha() == CIAlpha::Opaque;
    const QImage::Format format = read->format() == CIFormat::RGBA16
        ? (isOpaque ? QImage::Format_RGBX64 : QImage::Format_RGBA64)
        : (isOpaque ? QImage::Format_RGBX8888 : QImage::Format_RGBA8888);
    const QImage whole(reinterpret_cast<const uchar*>(read->row(0)), read->width(), read->height(),
        qsizetype(read->bytesPerRow()), format);
    QImage colored = whole;
    if (const CIProfiledSpace* const profiled = profiledSpace(read->colorSpace())) {
        const std::vector<std::byte>& icc = profiled->profile().icc;
        colored.setColorSpace(
            QColorSpace::fromIccProfile(QByteArray(reinterpret_cast<const char*>(icc.data()), qsizetype(icc.size()))));
        if (colored.colorSpace().isValid())
            colored.convertToColorSpace(QColorSpace::SRgb);
    }
    return colored.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

/// What both threads know. The model may go first.
struct FileThumbnails::Job {
    std::mutex guard;
    FileThumbnails* model; // null when it has gone
    std::vector<QString> waiting; // the last one is next: it has just come into sight
    bool isReading = false;
    int side = kSide; // px
    std::atomic<bool> cancelled = false;
};

void FileThumbnails::installIn(QFileDialog& panel)
{
    panel.setProxyModel(new FileThumbnails(panel));
    if (auto* list = panel.findChild<QTreeView*>())
        list->setIconSize({kSide, kSide});
}

FileThumbnails::FileThumbnails(QFileDialog& panel)
    : QIdentityProxyModel(&panel)
    , m_icons(kMostIcons)
    , m_job(std::make_shared<Job>())
{
    m_job->model = this;
    m_job->side = int(kSide * panel.devicePixelRatioF());
}

FileThumbnails::~FileThumbnails()
{
    const std::lock_guard lock(m_job->guard);
    m_job->model = nullptr;
    m_job->waiting.clear();
    m_job->cancelled = true;
    if (m_job->isReading)
        imageio::giveUpLooseThread();
}

QVariant FileThumbnails::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DecorationRole && index.column() == 0) {
        const QString path = QIdentityProxyModel::data(index, QFileSystemModel::FilePathRole).toString();
        if (isAcceptablePictureFile(path) && QFileInfo(path).isFile()) {
            if (const QIcon* icon = m_icons.object(path))
                return *icon;
            read(path);
        }
    }
    return QIdentityProxyModel::data(index, role);
}

void FileThumbnails::read(const QString& path) const
{
    if (!m_asked.insert(path).second)
        return;
    const std::lock_guard lock(m_job->guard);
    m_job->waiting.push_back(path);
    if (std::exchange(m_job->isReading, true))
        return;
    imageio::runOnLooseThread([job = m_job] {
        while (true) {
            QString next;
            {
                const std::lock_guard lock(job->guard);
                job->isReading = !job->waiting.empty();
                if (!job->isReading)
                    return;
                next = job->waiting.back();
                job->waiting.pop_back();
            }
            const QImage picture = smallPicture(next, job->side, job->cancelled);
            const std::lock_guard lock(job->guard);
            if (job->model && !picture.isNull())
                QMetaObject::invokeMethod(
                    job->model, [job, next, picture] { job->model->show(next, picture); }, Qt::QueuedConnection);
        }
    });
}

void FileThumbnails::show(const QString& path, const QImage& picture)
{
    m_icons.insert(path, new QIcon(iconOf(picture, m_job->side / double(kSide))));
    const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (const QModelIndex index = files ? mapFromSource(files->index(path)) : QModelIndex(); index.isValid())
        emit dataChanged(index, index, {Qt::DecorationRole});
}
