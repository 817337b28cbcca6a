// The finished picture, and how it becomes a file.
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "files/ExportFormats.h"
#include "files/ImageDestination.h"
#include "files/PictureMessages.h"
#include "files/SavePanel.h"
#include "platform/chain/Baking.h"
#include "platform/foundation/Log.h"
#include "platform/imageio/PictureWriter.h"
#include "ui_SaveOptions.h"
#include "widgets/AlertPanel.h"
#include "widgets/BackgroundWork.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int kFormatTag = 1, kResolutionTag = 2;
constexpr double kRenderingShare = 0.6; // of the time of a save, about
constexpr int kResolutions[] = {72, 96, 150, 300, 600};

/// The menu of that tag; null when there is none.
QComboBox* menuWithTag(const QWidget* view, int tag)
{
    const QList<QComboBox*> menus = view ? view->findChildren<QComboBox*>() : QList<QComboBox*>();
    for (QComboBox* menu : menus)
        if (menu->property("tag").toInt() == tag)
            return menu;
    return nullptr;
}

} // namespace

void Controller::initExportFormats()
{
    saveObjectOutlet = new QWidget(&m_window);
    saveObjectOutlet->hide();
    Ui::SaveOptions options;
    options.setupUi(saveObjectOutlet);
    for (std::size_t i = 0; i < exportFormats().size(); ++i)
        options.formatMenu->addItem(QLatin1String(exportFormats()[i]->exportName), int(i));
    options.formatMenu->setCurrentIndex(0);
    for (int i = 0; i < int(std::size(kResolutions)); ++i)
        options.resolutionMenu->setItemData(i, kResolutions[i]);
}

double Controller::chosenResolution() const
{
    const QComboBox* menu = menuWithTag(saveObjectOutlet, kResolutionTag);
    return menu ? menu->currentData().toDouble() : kDefaultResolution;
}

CIBitmap Controller::createObjectImage()
{
    CIBitmap bitmap;
    const BaseEffect::LaterImage image = laterEffectedImage();
    if (!image)
        return bitmap;
    WorkControl control(1);
    workInBackground(&m_window, tr("Rendering the picture…"), control, [&] {
        bitmap =
            renderedBitmap(*m_document.context(), image(&control.rendering), m_document.format(), &control.rendering);
    });
    return bitmap;
}

CIBitmap Controller::getCGImage() { return renderedBitmap(*m_document.context(), getImage(true), CIFormat::RGBA8); }

void Controller::getBitmapBmpBitmap(const CIBitmap& bitmap, BitmapDescription& description)
{
    if (bitmap.isNull())
        return;
    constexpr int samples = 4;
    description.width = float(bitmap.width());
    description.height = float(bitmap.height());
    description.bitsPerPixel = int(bytesPerPixel(bitmap.format())) * 8;
    description.bitsPerSample = description.bitsPerPixel / samples;
    description.bytesPerRow = bitmap.bytesPerRow();
    description.pixels = bitmap.row(0);
    description.bitmap = &bitmap;
}

void Controller::saveImg()
{
    if (isOpening())
        return;
    if (m_document.filePath().isEmpty()) {
        runSavePanel();
        return;
    }
    if (saveExistFile()) {
        if (quitAfterSave)
            terminate();
        return;
    }
    quitAfterSave = false; // or the next request would quit without a question
    if (!m_saveWasStopped)
        AlertPanel::Alert_OKMsgText(&m_window, tr("Couldn't save file."), tr("File I/O error occured."));
}

bool Controller::asksToReplace()
{
    return AlertPanel::Alert_OKCancelMsgText(&m_window, tr("Do you want to replace an existing file?"),
               tr("A file with the same name is already exists. Replacing it will overwrite its current contents."))
        == 1;
}

bool Controller::saveExistFile()
{
    m_saveWasStopped = false;
    if (!asksToReplace())
        return true; // a declined save counts as done
    const double resolution = chosenResolution();
    const int index = exportIndexForExtension(QFileInfo(m_document.filePath()).suffix());
    if (index < 0)
        return false;
    const bool wasChanged = m_document.wasChanged();
    m_document.setWasChanged(false);
    const bool saved = simplySaveResolutionPath(index, resolution, m_document.filePath());
    if (m_saveWasStopped)
        m_document.setWasChanged(wasChanged);
    else
        rememberRecentFile(m_document.filePath());
    return saved && !m_saveWasStopped;
}

void Controller::runSavePanel()
{
    if (isOpening())
        return;
    auto* panel = new SavePanel(&m_window, saveObjectOutlet);
    panel->setWindowTitle(tr("Save Image As:"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    if (!m_lastFolder.isEmpty())
        panel->setDirectory(m_lastFolder);
    if (QComboBox* formats = menuWithTag(saveObjectOutlet, kFormatTag)) {
        formats->setCurrentIndex(0);
        formats->setCurrentIndex(formats->findData(format_type));
    }
    connect(panel, &QFileDialog::finished, this, [this, panel](int code) {
        m_lastFolder = panel->directory().absolutePath();
        // When the panel has gone: its end would not be told to the window while that waits for the file.
        QMetaObject::invokeMethod(
            this, [this, code, path = panel->selectedFiles().value(0)] { savePanelDidEnd(code, path); },
            Qt::QueuedConnection);
    });
    panel->open();
}

void Controller::savePanelDidEnd(int returnCode, const QString& path)
{
    m_saveWasStopped = false;
    if (returnCode == QDialog::Accepted && !path.isEmpty())
        saveAs(path);
    if (quitAfterSave)
        terminate();
}

/// In the format and the resolution of the menus.
void Controller::saveAs(const QString& path)
{
    const QComboBox* formats = menuWithTag(saveObjectOutlet, kFormatTag);
    format_type = formats ? formats->currentData().toInt() : 0;
    const QString name = QLatin1String(exportFormats()[std::size_t(format_type)]->exportName);
    const double resolution = chosenResolution();
    const QString target = exportPath(path, name);
    // Whatever the answer, the file is overwritten. The new one takes the old one's place when it is complete; taking
    // the old one away before could lose both.
    if (QFile::exists(target))
        static_cast<void>(asksToReplace());
    const QString oldPath = m_document.filePath();
    const bool wasChanged = m_document.wasChanged();
    setFilePath(target);
    m_document.setWasChanged(false);
    if (name == QLatin1String("PDF"))
        createPDFFileResolution(target, resolution);
    else
        simplySaveResolutionPath(format_type, resolution, target);
    if (m_saveWasStopped) {
        setFilePath(oldPath);
        m_document.setWasChanged(wasChanged);
    } else {
        rememberRecentFile(target);
    }
}

bool Controller::simplySaveResolutionPath(int index, double, const QString& path)
{
    const PictureFormat format =
        bitmapFormatForType(QLatin1String(exportFormats()[std::size_t(index)]->typeIdentifier));
    const bool isWritten = writeInBackground(path, [&](const CIBitmap& bitmap, CIRenderControl& control) {
        return writePicture(bitmap, QFile::encodeName(path).toStdString(),
            {.format = format, .metadata = m_document.metadata(), .control = &control});
    });
    qCInfo(lumivexLog) << (isWritten ? "YES" : "NO");
    return true;
}

void Controller::createPDFFileResolution(const QString& path, double)
{
    writeInBackground(
        path, [&](const CIBitmap& bitmap, CIRenderControl& control) { return writePdf(bitmap, path, &control); });
}

/// Renders the finished picture and has `write` make a file of it, beside the living window.
bool Controller::writeInBackground(
    const QString& path, const std::function<Result<void>(const CIBitmap&, CIRenderControl&)>& write)
{
    const BaseEffect::LaterImage image = laterEffectedImage();
    Result<void> result = Failure{Reason::NoMemoryToSave};
    WorkControl control(kRenderingShare);
    workInBackground(&m_window, tr("Saving “%1”…").arg(QFileInfo(path).fileName()), control, [&] {
        const CIImage finished = image ? image(&control.rendering) : CIImage();
        const CIBitmap bitmap =
            renderedBitmap(*m_document.context(), finished, m_document.format(), &control.rendering);
        control.rendering.setProgress(1);
        if (!control.isCancelled())
            result = write(bitmap, control.writing);
    });
    m_saveWasStopped = !result && control.isCancelled();
    if (!result)
        quitAfterSave = false; // the picture would end with the program
    if (result)
        markSessionClean();
    if (!result && !m_saveWasStopped)
        showMessage(shownText(result.failure()));
    return result.isOk();
}
