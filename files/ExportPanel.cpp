#include "files/ExportPanel.h"

#include "files/BeforeAfterView.h"
#include "files/ExportMeasuring.h"
#include "files/ExportNames.h"
#include "files/PictureMessages.h"
#include "widgets/AlertPanel.h"
#include "widgets/FilePanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>

ExportPanel::ExportPanel(QWidget* window, const CIBitmap& picture, const Offer& offered)
    : QDialog(window)
    , m_picture(picture)
    , m_measuring(std::make_unique<ExportMeasuring>(picture, offered.metadata))
{
    setObjectName(QStringLiteral("ExportPanel"));
    setWindowTitle(tr("Export"));
    setWindowModality(Qt::WindowModal);
    build();
    offer(offered);
    connect(m_measuring.get(), &ExportMeasuring::measured, this, &ExportPanel::showMeasured);
    connect(m_name, &QLineEdit::textEdited, this, &ExportPanel::nameTyped);
    connect(m_folder, &QLineEdit::textEdited, this, [this] { m_message->hide(); });
    connect(m_formats, &QComboBox::currentIndexChanged, this, &ExportPanel::formatChosen);
    for (QComboBox* menu : {m_chroma, m_compression, m_depth, m_metadata, m_resolution})
        connect(menu, &QComboBox::currentIndexChanged, this, &ExportPanel::changed);
    for (QCheckBox* box : {m_progressive, m_lossless})
        connect(box, &QCheckBox::toggled, this, &ExportPanel::changed);
    connect(m_quality, &QSlider::valueChanged, this, &ExportPanel::changed);
    connect(m_width, &QSpinBox::valueChanged, this,
        [this] { setSide(*m_width, *m_height, m_picture.width(), m_picture.height()); });
    connect(m_height, &QSpinBox::valueChanged, this,
        [this] { setSide(*m_height, *m_width, m_picture.height(), m_picture.width()); });
    connect(m_proportions, &QCheckBox::toggled, this,
        [this] { setSide(*m_width, *m_height, m_picture.width(), m_picture.height()); });
    connect(m_export, &QAbstractButton::clicked, this, &ExportPanel::exportPressed);
    m_measuring->measure(settings());
}

ExportPanel::~ExportPanel() = default;

void ExportPanel::offer(const Offer& offered)
{
    m_isFilling = true;
    const QFileInfo opened(offered.path);
    const FileFormat* known = offered.path.isEmpty() ? nullptr : formatOfFileName(opened.fileName());
    const FileFormat& first = known ? *known : fileFormat(ExportSettings::lastFormat());
    for (const FileFormat* row : exportableFormats())
        m_formats->addItem(QLatin1String(row->name), int(row->format));
    m_formats->setCurrentIndex(std::max(0, m_formats->findData(int(first.format))));
    m_name->setText(nameInFormat(offered.path.isEmpty() ? tr("Untitled") : opened.fileName(), format()));
    const QString folder = !offered.path.isEmpty() ? opened.absolutePath() : offered.folder;
    m_folder->setText(folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) : folder);

    for (const int dots : {0, 72, 96, 150, 240, 300, 600})
        m_resolution->addItem(dots ? tr("%1 dpi").arg(dots) : tr("None"), double(dots));
    const double own = offered.metadata ? offered.metadata->dotsPerInch() : 0;
    if (own > 0 && m_resolution->findData(own) < 0)
        m_resolution->addItem(tr("%1 dpi").arg(own), own);
    m_width->setValue(m_picture.width());
    m_height->setValue(m_picture.height());
    showOptionsOf(format());
    m_name->setFocus();
    m_name->setSelection(0, int(QFileInfo(m_name->text()).completeBaseName().size()));
    m_isFilling = false;
}

const FileFormat& ExportPanel::format() const { return fileFormat(PictureFormat(m_formats->currentData().toInt())); }

QString ExportPanel::target() const
{
    const QString name = m_name->text().trimmed();
    return exportTarget(m_folder->text().trimmed(), nameInFormat(name, format()));
}

ExportSettings ExportPanel::settings() const
{
    ExportSettings settings;
    settings.options = {.format = format().format,
        .quality = m_quality->value() / 100.0,
        .hasFullChroma = m_chroma->currentData().toBool(),
        .isProgressive = m_progressive->isChecked(),
        .isLossless = m_lossless->isChecked(),
        .compression = std::max(0, m_compression->currentIndex()),
        .dotsPerInch = m_resolution->currentData().toDouble(),
        .bitsPerComponent = m_depth->currentData().toInt()};
    settings.metadata = KeptMetadata(m_metadata->currentData().toInt());
    settings.size = QSize(m_width->value(), m_height->value());
    return settings;
}

/// A typed extension chooses the format; the name stays as it is typed.
void ExportPanel::nameTyped()
{
    m_message->hide();
    m_export->setEnabled(!m_name->text().trimmed().isEmpty());
    if (const FileFormat* typed = formatOfFileName(m_name->text())) {
        m_isFilling = true; // the name is not to be changed in turn
        m_formats->setCurrentIndex(m_formats->findData(int(typed->format)));
        m_isFilling = false;
    }
}

void ExportPanel::formatChosen()
{
    if (!m_isFilling && !m_name->text().trimmed().isEmpty())
        m_name->setText(nameInFormat(m_name->text(), format()));
    const bool wasFilling = std::exchange(m_isFilling, true);
    showOptionsOf(format());
    m_isFilling = wasFilling;
    m_message->hide();
    m_measuring->measure(settings());
    m_size->setText(tr("Working out the size…"));
}

/// As the format had them last.
void ExportPanel::showOptionsOf(const FileFormat& row)
{
    const ExportSettings last = ExportSettings::remembered(row.format);
    const FormatOptions& has = row.options;
    m_quality->setValue(int(std::lround(last.options.quality * 100)));
    m_chroma->setCurrentIndex(last.options.hasFullChroma);
    m_progressive->setChecked(last.options.isProgressive && has.progressive);
    m_lossless->setChecked(last.options.isLossless && has.lossless);
    m_compression->clear();
    for (const char* name : has.compressions)
        m_compression->addItem(tr(name));
    m_compression->setCurrentIndex(last.options.compression);
    const bool hasDepths = row.writtenBits > 8 && row.writtenBits < 32;
    m_depth->clear();
    m_depth->addItem(tr("%1 bits").arg(8), 8);
    if (hasDepths)
        m_depth->addItem(tr("%1 bits").arg(row.writtenBits), 16);
    const bool isDeep = last.options.bitsPerComponent
        ? last.options.bitsPerComponent > 8
        : m_picture.format() == CIFormat::RGBA16 || m_picture.format() == CIFormat::RGBAf;
    m_depth->setCurrentIndex(isDeep && hasDepths);
    m_metadata->setCurrentIndex(int(last.metadata));
    m_resolution->setCurrentIndex(std::max(0, m_resolution->findData(last.options.dotsPerInch)));

    m_form->setRowVisible(m_qualityRow, has.quality);
    m_form->setRowVisible(m_chroma, has.chroma);
    m_form->setRowVisible(m_progressive, has.progressive);
    m_form->setRowVisible(m_lossless, has.lossless);
    m_form->setRowVisible(m_compression, !has.compressions.empty());
    m_form->setRowVisible(m_depth, hasDepths);
    m_form->setRowVisible(m_metadata, has.metadata);
    m_form->setRowVisible(m_resolution, has.resolution);
    m_qualityRow->setEnabled(!m_lossless->isChecked());
    m_chroma->setEnabled(!m_lossless->isChecked());
}

void ExportPanel::setSide(QSpinBox& changedSide, QSpinBox& other, int length, int otherLength)
{
    if (m_isFilling)
        return;
    if (m_proportions->isChecked()) {
        m_isFilling = true;
        other.setValue(std::max(1, int(std::lround(double(changedSide.value()) * otherLength / length))));
        m_isFilling = false;
    }
    changed();
}

void ExportPanel::changed()
{
    if (m_isFilling)
        return;
    m_qualityRow->setEnabled(!m_lossless->isChecked());
    m_chroma->setEnabled(!m_lossless->isChecked());
    m_message->hide();
    m_size->setText(tr("Working out the size…"));
    m_measuring->measure(settings());
}

void ExportPanel::showMeasured(const ExportMeasured& result)
{
    if (result.failure) {
        m_size->setText(shownText(*result.failure));
        m_view->setPictures({}, {});
        return;
    }
    m_size->setText(tr("%1 × %2 px · %3", "width, height, size of the file")
                        .arg(result.before.width())
                        .arg(result.before.height())
                        .arg(fileSizeText(result.bytes)));
    m_view->setPictures(result.before, result.after);
}

void ExportPanel::showFailure(const QString& reason)
{
    m_message->setText(reason);
    m_message->show();
}

void ExportPanel::chooseFolder()
{
    auto* panel = new QFileDialog(this, tr("Choose a Folder"), exportTarget(m_folder->text(), {}));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    panel->setWindowModality(Qt::WindowModal);
    dressFilePanel(*panel);
    connect(panel, &QFileDialog::fileSelected, m_folder, &QLineEdit::setText);
    panel->open();
}

void ExportPanel::exportPressed()
{
    const QString path = target();
    m_message->hide();
    if (QFileInfo(path).isDir())
        return showFailure(tr("“%1” is a folder.").arg(QFileInfo(path).fileName()));
    if (QFileInfo::exists(path)) {
        const QString question = tr("Replace “%1”?").arg(QFileInfo(path).fileName());
        const QString text = tr("There is a file of that name in this folder already. What is in it will be lost.");
        if (AlertPanel::AlertSheetModalResMsgTextButtons(
                this, question, text, AlertPanel::FirstReplace | AlertPanel::SecondCancel)
            != 1)
            return;
    }
    emit exportWanted(path, settings());
}
