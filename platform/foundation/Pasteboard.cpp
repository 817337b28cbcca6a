#include "platform/foundation/Pasteboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPointer>
#include <QUrl>

namespace {

const QMimeData* clipboardData() { return QGuiApplication::clipboard()->mimeData(); }

// Qt's own pictures, which have no bytes until they are asked for.
const QString kQtImageType = QStringLiteral("application/x-qt-image");

} // namespace

Pasteboard::Pasteboard()
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &Pasteboard::lookAgain);
}

Pasteboard& Pasteboard::generalPasteboard()
{
    static QPointer<Pasteboard> pasteboard; // goes with the application, and comes anew with the next one
    if (!pasteboard) {
        pasteboard = new Pasteboard;
        pasteboard->setParent(qGuiApp);
    }
    return *pasteboard;
}

QString Pasteboard::bestPictureType(const QStringList& offeredTypes)
{
    static const QStringList preferred{
        QStringLiteral("image/tiff"),
        QStringLiteral("image/png"),
        QStringLiteral("image/webp"),
        QStringLiteral("image/bmp"),
        QStringLiteral("image/jpeg"),
        QStringLiteral("image/jp2"),
        QStringLiteral("image/gif"),
    };
    for (const QString& type : preferred)
        if (offeredTypes.contains(type))
            return type;
    for (const QString& type : offeredTypes)
        if (type.startsWith(QLatin1String("image/")))
            return type;
    return offeredTypes.contains(kQtImageType) ? kQtImageType : QString();
}

void Pasteboard::setPicture(const QByteArray& tiff, const QImage& shown)
{
    auto* data = new QMimeData; // the clipboard owns it from now on
    data->setData(QStringLiteral("image/tiff"), tiff);
    data->setImageData(shown);
    QGuiApplication::clipboard()->setMimeData(data);
}

void Pasteboard::lookAgain()
{
    m_offersTIFF.reset();
    emit changed();
}

bool Pasteboard::offersTIFF() const
{
    if (!m_offersTIFF) {
        const QMimeData* data = clipboardData();
        m_offersTIFF =
            data && (data->hasImage() || !bestPictureType(data->formats()).isEmpty() || !pictureFile().isEmpty());
    }
    return *m_offersTIFF;
}

QString Pasteboard::pictureFile() const
{
    const QMimeData* data = clipboardData();
    if (!data || data->hasImage() || data->urls().size() != 1)
        return {};
    const QString path = data->urls().first().toLocalFile();
    return QFileInfo(path).isFile() ? path : QString();
}

QByteArray Pasteboard::pictureData() const
{
    const QMimeData* data = clipboardData();
    if (!data)
        return {};
    const QString type = bestPictureType(data->formats());
    if (!type.isEmpty() && type != kQtImageType)
        return data->data(type);
    const QImage image = qvariant_cast<QImage>(data->imageData());
    QBuffer file;
    if (!image.isNull() && file.open(QIODevice::WriteOnly))
        image.save(&file, "PNG");
    return file.data();
}
