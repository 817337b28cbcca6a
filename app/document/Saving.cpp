#include "app/document/Saving.h"

#include "app/document/Document.h"
#include "app/document/RecentFiles.h"
#include "app/document/ReplacedFiles.h"
#include "app/document/SaveTarget.h"
#include "app/document/SessionFolder.h"
#include "files/ExportFormats.h"
#include "files/ImageDestination.h"
#include "files/PictureMessages.h"
#include "files/SavePanel.h"
#include "platform/chain/Baking.h"
#include "platform/foundation/Log.h"
#include "platform/imageio/PictureWriter.h"
#include "ui_SaveOptions.h"
#include "widgets/AlertPanel.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr double kRenderingShare = 0.6; // of the time of a save, about
constexpr int kResolutions[] = {72, 96, 150, 300, 600};

/// Null when there is none.
QComboBox* formatMenu(const QWidget* panel)
{
    return panel ? panel->findChild<QComboBox*>(QStringLiteral("formatMenu")) : nullptr;
}

} // namespace

Saving::Saving(Document& document, QWidget* window, FinishedPicture finished, Listener listener)
    : m_document(document)
    , m_window(window)
    , m_finished(std::move(finished))
    , m_listener(std::move(listener))
{
}

void Saving::initExportFormats()
{
    saveObjectOutlet = new QWidget(m_window);
    saveObjectOutlet->hide();
    Ui::SaveOptions options;
    options.setupUi(saveObjectOutlet);
    for (std::size_t i = 0; i < exportFormats().size(); ++i)
        options.formatMenu->addItem(QLatin1String(exportFormats()[i]->exportName), int(i));
    options.formatMenu->setCurrentIndex(0);
    for (int i = 0; i < int(std::size(kResolutions)); ++i)
        options.resolutionMenu->setItemData(i, kResolutions[i]);
}

void Saving::save()
{
    if (!m_document.isIdle())
        return;
    if (m_document.filePath().isEmpty()) {
        runPanel();
    } else if (saveExistFile()) {
        m_document.whenIdle([this] { quitIfWanted(); });
    } else {
        quitAfterSave = false; // or the next request would quit without a question
        AlertPanel::Alert_OKMsgText(m_window, tr("Couldn't save file."), tr("File I/O error occured."));
        m_listener.impossible();
    }
}

void Saving::saveAndQuit()
{
    quitAfterSave = true;
    save();
}

void Saving::quitIfWanted()
{
    if (quitAfterSave)
        m_listener.terminate();
}

bool Saving::asksToReplace()
{
    return AlertPanel::Alert_OKCancelMsgText(m_window, tr("Do you want to replace an existing file?"),
               tr("A file with the same name is already exists. Replacing it will overwrite its current contents."))
        == 1;
}

bool Saving::saveExistFile()
{
    if (!asksToReplace())
        return true; // a declined save counts as done
    const QString path = m_document.filePath();
    const int index = exportIndexForExtension(QFileInfo(path).suffix());
    return index >= 0 && simplySave(index, path, changesSaved(path));
}

void Saving::runPanel()
{
    if (!m_document.isIdle())
        return;
    auto* panel = new SavePanel(m_window, saveObjectOutlet);
    panel->setWindowTitle(tr("Save Image As:"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    if (!m_document.folder().isEmpty())
        panel->setDirectory(m_document.folder());
    if (QComboBox* formats = formatMenu(saveObjectOutlet))
        formats->setCurrentIndex(formats->findData(format_type));
    panel->setTarget([this](const QString& chosen) { return SaveTarget::of(chosen, chosenFormat()); });
    if (QComboBox* formats = formatMenu(saveObjectOutlet))
        QObject::connect(formats, &QComboBox::currentIndexChanged, panel, &SavePanel::showTarget);
    QObject::connect(panel, &QFileDialog::finished, &m_document, [this, panel](int code) {
        m_document.setFolder(panel->directory().absolutePath());
        // When the panel has gone: alerts would find its end still to come.
        QMetaObject::invokeMethod(
            &m_document, [this, code, path = panel->selectedFiles().value(0)] { panelDidEnd(code, path); },
            Qt::QueuedConnection);
    });
    panel->open();
}

void Saving::panelDidEnd(int returnCode, const QString& path)
{
    if (returnCode == QDialog::Accepted && !path.isEmpty())
        saveAs(path);
    m_document.whenIdle([this] { quitIfWanted(); });
}

QString Saving::chosenFormat() const
{
    const QComboBox* formats = formatMenu(saveObjectOutlet);
    return QLatin1String(exportFormats()[std::size_t(formats ? formats->currentData().toInt() : 0)]->exportName);
}

/// In the format of the menu.
void Saving::saveAs(const QString& path)
{
    const QString name = chosenFormat();
    const std::optional<QString> asked = SaveTarget::asked(m_window, path, name);
    if (!asked) {
        quitAfterSave = false; // who goes back to the picture stays there
        return;
    }
    const QString& target = *asked;
    format_type = getRealExportIndex(name);
    Writer writer = name == QLatin1String("PDF") ? pdfWriter(target) : bitmapWriter(format_type, target);
    const auto kept = std::make_shared<std::optional<ReplacedFile>>();
    // Whatever the answer, the file is overwritten; but what the user wanted to keep can be had back. The new one takes
    // the old one's place when it is complete; taking the old one away before could lose both.
    if (QFile::exists(target) && !asksToReplace())
        writer = [kept, target, write = std::move(writer)](const CIBitmap& bitmap, CIRenderControl& control) {
            *kept = keepReplacedFile(target, SessionFolder::stateHome());
            return *kept ? write(bitmap, control)
                         : Result<void>(Failure{Reason::NoSpace, QFileInfo(target).fileName().toStdString()});
        };
    const auto saved = changesSaved(m_document.filePath());
    m_document.setFilePath(target);
    write(target, std::move(writer), [this, saved, kept, target](bool isStopped) {
        saved(isStopped);
        const QString file = QFileInfo(target).fileName();
        if (*kept)
            emit m_document.message((*kept)->isInTrash ? tr("The “%1” that was there is in the trash.").arg(file)
                                                       : tr("The “%1” that was there is kept for 30 days in %2.")
                                                             .arg(file, QFileInfo((*kept)->path).path()));
    });
}

/// From now on nothing is unsaved; what a save does that ends so. When it is stopped, the picture is that of `oldPath`
/// again, and as unsaved as it was.
Saving::Then Saving::changesSaved(const QString& oldPath)
{
    const bool wasChanged = m_document.wasChanged();
    m_document.setWasChanged(false);
    return [this, oldPath, wasChanged](bool isStopped) {
        if (!isStopped) {
            RecentFiles::remember(m_document.filePath());
            return;
        }
        if (oldPath != m_document.filePath())
            m_document.setFilePath(oldPath);
        m_document.setWasChanged(wasChanged);
    };
}

bool Saving::simplySave(int index, const QString& path, Then then)
{
    write(path, bitmapWriter(index, path), std::move(then));
    return true;
}

void Saving::createPDFFile(const QString& path, Then then) { write(path, pdfWriter(path), std::move(then)); }

Saving::Writer Saving::bitmapWriter(int index, const QString& path) const
{
    const PictureFormat format =
        bitmapFormatForType(QLatin1String(exportFormats()[std::size_t(index)]->typeIdentifier));
    return [format, path, metadata = m_document.metadata()](const CIBitmap& bitmap, CIRenderControl& control) {
        return writePicture(bitmap, QFile::encodeName(path).toStdString(),
            {.format = format, .metadata = metadata, .control = &control});
    };
}

Saving::Writer Saving::pdfWriter(const QString& path) const
{
    return [path](const CIBitmap& bitmap, CIRenderControl& control) { return writePdf(bitmap, path, &control); };
}

/// Renders the finished picture and has `writer` make a file of it.
void Saving::write(const QString& path, Writer writer, Then then)
{
    const auto make = [picture = m_finished(), writer = std::move(writer), context = m_document.context(),
                          format = storedLike(m_document.picture(), m_document.format())](
                          WorkControl& control) -> Result<void> {
        const CIImage finished = picture ? picture(&control.rendering) : CIImage();
        const CIBitmap bitmap = renderedBitmap(*context, finished, format, &control.rendering);
        control.rendering.setProgress(1);
        return control.isCancelled() ? Result<void>(Failure{Reason::NotWritten}) : writer(bitmap, control.writing);
    };
    m_document.work({.title = tr("Saving “%1”…").arg(QFileInfo(path).fileName()), .renderingShare = kRenderingShare},
        make, [this, then = std::move(then)](const std::optional<Result<void>>& result, bool isCancelled) {
            const bool isWritten = result && *result;
            qCInfo(lumivexLog) << (isWritten ? "YES" : "NO");
            if (isWritten)
                m_listener.saved();
            else
                quitAfterSave = false; // the picture would end with the program
            const bool isStopped = !isWritten && isCancelled;
            if (then)
                then(isStopped);
            if (isWritten || isStopped)
                return;
            m_document.setUnsaved();
            AlertPanel::Alert_OKMsgText(m_window, tr("Couldn't save file."),
                shownText(result ? result->failure() : Failure{Reason::NoMemoryToSave}));
        });
}
