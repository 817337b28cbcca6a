#include "app/document/Exporting.h"

#include "app/document/Document.h"
#include "app/document/RecentFiles.h"
#include "files/ExportNames.h"
#include "files/ExportPanel.h"
#include "files/PictureMessages.h"
#include "platform/chain/Baking.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>

Exporting::Exporting(Document& document, QWidget* window, FinishedPicture finished, std::function<void()> exported)
    : m_document(document)
    , m_window(window)
    , m_finished(std::move(finished))
    , m_exported(std::move(exported))
{
}

void Exporting::run()
{
    if (!m_document.isIdle() || !m_document.picture())
        return;
    const auto make = [picture = m_finished(), context = m_document.context(),
                          format = storedLike(m_document.picture(), m_document.format())](WorkControl& control) {
        const CIImage finished = picture ? picture(&control.rendering) : CIImage();
        return renderedBitmap(*context, finished, format, &control.rendering);
    };
    m_document.work(
        {.title = tr("Drawing the picture…")}, make, [this](const std::optional<CIBitmap>& picture, bool isCancelled) {
            if (picture && !picture->isNull())
                showPanel(*picture);
            else if (!isCancelled)
                emit m_document.message(shownText({Reason::NoMemoryToSave}));
        });
}

void Exporting::showPanel(const CIBitmap& picture)
{
    auto* panel = new ExportPanel(m_window, picture,
        {.path = m_document.filePath(), .folder = m_document.folder(), .metadata = m_document.metadata()});
    QObject::connect(panel, &QDialog::rejected, panel, &QObject::deleteLater);
    QObject::connect(panel, &ExportPanel::exportWanted, &m_document,
        [this, panel, picture](
            const QString& path, const ExportSettings& settings) { write(*panel, picture, path, settings); });
    panel->show();
}

void Exporting::write(ExportPanel& panel, const CIBitmap& picture, const QString& path, const ExportSettings& settings)
{
    const auto make = [picture, path, settings, metadata = m_document.metadata()](
                          WorkControl& control) -> Result<void> {
        const CIBitmap bitmap = bitmapToExport(picture, settings);
        const auto encoded = encodeExport(bitmap, settings, metadata, &control.writing);
        if (control.isCancelled())
            return Failure{Reason::NotWritten};
        if (!encoded)
            return Failure{encoded.failure().reason, QFileInfo(path).fileName().toStdString()};
        return writeBytes(*encoded, QFile::encodeName(path).toStdString());
    };
    panel.hide(); // the progress sheet takes its place
    m_document.work({.title = tr("Exporting “%1”…").arg(QFileInfo(path).fileName()), .renderingShare = 0}, make,
        [this, panel = QPointer(&panel), path, settings](const std::optional<Result<void>>& result, bool isCancelled) {
            if (!panel)
                return;
            if (result && *result) {
                settings.remember();
                return done(*panel, path);
            }
            panel->show();
            if (!isCancelled)
                panel->showFailure(shownText(result ? result->failure() : Failure{Reason::NoMemoryToSave}));
        });
}

/// As after a save, but the document keeps its own file.
void Exporting::done(ExportPanel& panel, const QString& path)
{
    panel.deleteLater();
    m_document.setFolder(QFileInfo(path).absolutePath());
    m_document.setWasChanged(false);
    m_exported();
    RecentFiles::remember(path);
    emit m_document.message(tr("Exported “%1”: %2", "file name, its size")
                                .arg(QFileInfo(path).fileName(), fileSizeText(QFileInfo(path).size())));
}
