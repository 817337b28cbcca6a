#include "app/document/Clipboard.h"

#include "app/document/Document.h"
#include "app/document/PictureOpening.h"
#include "files/PlainPicture.h"
#include "platform/chain/Baking.h"
#include "platform/foundation/Pasteboard.h"
#include "platform/imageio/PictureWriter.h"

#include <QFileInfo>

namespace {

struct Copied {
    std::vector<std::byte> tiff;
    QImage shown;
};

} // namespace

void Clipboard::copy()
{
    const LaterPicture picture = m_document.isIdle() ? m_finished() : LaterPicture();
    if (!picture)
        return;
    const auto make = [picture, context = m_document.context(),
                          format = storedLike(m_document.picture(), m_document.format())](WorkControl& control) {
        const CIBitmap bitmap = renderedBitmap(*context, picture(&control.rendering), format, &control.rendering);
        Copied copied;
        Result<std::vector<std::byte>> encoded =
            encodePicture(bitmap, {.format = PictureFormat::Tiff, .control = &control.writing});
        if (encoded)
            copied.tiff = std::move(encoded.value());
        copied.shown = screenPicture(bitmap);
        return copied;
    };
    m_document.work({.title = tr("Copying the picture…"), .renderingShare = 0.5}, make,
        [this](const std::optional<Copied>& copied, bool isCancelled) {
            if (copied && !copied->tiff.empty())
                Pasteboard::generalPasteboard().setPicture(
                    QByteArray(reinterpret_cast<const char*>(copied->tiff.data()), qsizetype(copied->tiff.size())),
                    copied->shown);
            else if (!isCancelled)
                emit m_document.message(tr("There was not enough memory to copy the picture"));
        });
}

void Clipboard::paste()
{
    if (!m_document.isIdle())
        return;
    const QString file = Pasteboard::generalPasteboard().pictureFile();
    const QByteArray data = file.isEmpty() ? Pasteboard::generalPasteboard().pictureData() : QByteArray();
    if (file.isEmpty() && data.isEmpty())
        return;
    readBesideWindow(
        m_document, tr("Pasting the picture…"),
        [data, file](const ReadOptions& options) {
            return file.isEmpty() ? readPictureData(data, options) : readPictureFile(file, options);
        },
        [this, file](const CIImage& picture) {
            if (!picture && !file.isEmpty()) { // any file may have been copied
                emit m_document.message(tr("“%1” can't be pasted: %2", "file name, what is wrong")
                                            .arg(QFileInfo(file).fileName(), m_document.readFailure()));
                return;
            }
            m_document.replaceByForeignPicture(picture);
            m_document.undoManager().setActionName(tr("Paste"));
        });
}
