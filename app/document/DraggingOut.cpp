#include "app/document/DraggingOut.h"

#include "app/document/Document.h"
#include "files/ExportNames.h"
#include "files/ExportSettings.h"
#include "files/PictureMessages.h"
#include "platform/chain/Baking.h"

#include <QDir>
#include <QDrag>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

DraggingOut::DraggingOut(Document& document, QWidget* source, FinishedPicture finished)
    : carry([source](QMimeData* data) {
        auto* drag = new QDrag(source);
        drag->setMimeData(data);
        if (QGuiApplication::mouseButtons() & Qt::LeftButton) // or it has been let go meanwhile
            drag->exec(Qt::CopyAction);
        else
            drag->deleteLater();
    })
    , m_document(document)
    , m_finished(std::move(finished))
{
}

/// In a folder of its own, so that names need no numbers.
QString DraggingOut::freshPath(const QString& name)
{
    if (!m_folder)
        m_folder.emplace();
    const QString folder = QString::number(++m_count);
    QDir(m_folder->path()).mkdir(folder);
    return m_folder->filePath(folder + QLatin1Char('/') + name);
}

void DraggingOut::start()
{
    if (!m_document.isIdle() || !m_document.picture())
        return;
    const PictureFormat last = ExportSettings::lastFormat();
    const FileFormat& format = fileFormat(fileFormat(last).encode ? last : PictureFormat::Png);
    QString name = QFileInfo(m_document.filePath()).fileName();
    if (name.isEmpty())
        name = tr("Picture");
    const QString path = freshPath(nameInFormat(name, format));
    const auto make = [picture = m_finished(), context = m_document.context(),
                          depth = storedLike(m_document.picture(), m_document.format()), path,
                          metadata = m_document.metadata(), remembered = ExportSettings::remembered(format.format)](
                          WorkControl& control) -> Result<void> {
        const CIImage finished = picture ? picture(&control.rendering) : CIImage();
        const CIBitmap bitmap = renderedBitmap(*context, finished, depth, &control.rendering);
        if (bitmap.isNull())
            return Failure{Reason::NoMemoryToSave};
        ExportSettings settings = remembered;
        settings.size = {bitmap.width(), bitmap.height()};
        const auto encoded = encodeExport(bitmapToExport(bitmap, settings), settings, metadata, &control.writing);
        if (!encoded)
            return encoded.failure();
        return writeBytes(*encoded, QFile::encodeName(path).toStdString());
    };
    m_document.work({.title = tr("Writing the picture…"), .renderingShare = 0.5}, make,
        [this, path](const std::optional<Result<void>>& written, bool isCancelled) {
            if (written && *written) {
                auto* data = new QMimeData;
                data->setUrls({QUrl::fromLocalFile(path)});
                carry(data);
            } else if (!isCancelled) {
                emit m_document.message(shownText(written ? written->failure() : Failure{Reason::NoMemoryToSave}));
            }
        });
}
