// What the panel is built of.
#include "files/ExportPanel.h"

#include "files/BeforeAfterView.h"
#include "files/ExportMeasuring.h"
#include "widgets/PanelCheckBox.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 16, kSpacing = 12, kRowSpacing = 8, kFormWidth = 320;
constexpr int kLongestSide = 65'535;

template <class Part>
Part* named(Part* part, const char* name, const QString& accessibleName, const QString& hint)
{
    part->setObjectName(QLatin1String(name));
    part->setAccessibleName(accessibleName);
    part->setToolTip(hint);
    return part;
}

} // namespace

void ExportPanel::build()
{
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    all->setSpacing(kSpacing);
    buildNames(*all);

    auto* middle = new QHBoxLayout;
    middle->setSpacing(kMargin);
    auto* options = new QWidget;
    options->setFixedWidth(kFormWidth);
    m_form = new QFormLayout(options);
    m_form->setContentsMargins(0, 0, 0, 0);
    m_form->setSpacing(kRowSpacing);
    m_form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    buildOptions(*m_form);
    middle->addWidget(options, 0, Qt::AlignTop);
    auto* right = new QVBoxLayout;
    right->setSpacing(kRowSpacing);
    m_view = new BeforeAfterView(this);
    m_size = named(new QLabel(tr("Working out the size…")), "sizeLabel", tr("Size of the file"), {});
    m_size->setTextFormat(Qt::PlainText);
    m_size->setTextInteractionFlags(Qt::TextSelectableByMouse);
    right->addWidget(m_view, 1);
    right->addWidget(m_size);
    middle->addLayout(right, 1);
    all->addLayout(middle, 1);

    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(kRowSpacing);
    m_message = named(new QLabel, "messageLabel", {}, {});
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->hide();
    QFont bold = m_message->font();
    bold.setBold(true);
    m_message->setFont(bold);
    auto* cancel = named(new QPushButton(tr("Cancel")), "cancelBtn", tr("Cancel"), tr("Exports nothing"));
    auto* exporting = named(new QPushButton(tr("&Export")), "exportPanelBtn", tr("Export"), tr("Writes the file"));
    exporting->setDefault(true);
    cancel->setAutoDefault(false);
    m_export = exporting;
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    bottom->addWidget(m_message, 1);
    bottom->addStretch();
    bottom->addWidget(cancel);
    bottom->addWidget(exporting);
    all->addLayout(bottom);
    resize(960, 560);
}

void ExportPanel::buildNames(QBoxLayout& column)
{
    auto* names = new QGridLayout;
    names->setHorizontalSpacing(kRowSpacing);
    names->setVerticalSpacing(kRowSpacing);
    m_name = named(new QLineEdit, "nameField", tr("Name"), tr("The file's name, written as it is typed"));
    m_folder = named(new QLineEdit, "folderField", tr("Folder"), tr("The folder in which the file is written"));
    auto* choose =
        named(new QPushButton(tr("&Choose…")), "chooseFolderBtn", tr("Choose a folder"), tr("Chooses the folder"));
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &ExportPanel::chooseFolder);
    const auto caption = [&](const QString& text, QWidget* of, int row) {
        auto* label = new QLabel(text);
        label->setBuddy(of);
        names->addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    };
    caption(tr("&Name:"), m_name, 0);
    caption(tr("&Folder:"), m_folder, 1);
    names->addWidget(m_name, 0, 1, 1, 2);
    names->addWidget(m_folder, 1, 1);
    names->addWidget(choose, 1, 2);
    column.addLayout(names);
}

void ExportPanel::buildOptions(QFormLayout& form)
{
    m_formats = addMenu(form, "exportFormatMenu", tr("F&ormat:"), tr("What kind of file is written"));
    buildQuality(form);
    m_lossless = addBox(form, "losslessBox", tr("&Lossless"), tr("Keeps every pixel exactly; the file becomes larger"));
    m_chroma = addMenu(form, "chromaMenu", tr("C&hroma:"), tr("How sharp colors are stored"));
    m_chroma->addItem(tr("Automatic"), false);
    m_chroma->addItem(tr("Full (4:4:4)"), true);
    m_progressive = addBox(form, "progressiveBox", tr("&Progressive"),
        tr("Browsers show the whole picture early, and sharpen it while it loads"));
    m_compression =
        addMenu(form, "compressionMenu", tr("Co&mpression:"), tr("How the pixels are packed; none is lost"));
    m_depth = addMenu(form, "depthMenu", tr("&Depth:"), tr("Bits of each color component"));
    buildSize(form);
    m_resolution = addMenu(form, "exportResolutionMenu", tr("&Resolution:"),
        tr("Dots per inch, stored for printing; the pixels stay the same"));
    m_metadata = addMenu(
        form, "metadataMenu", tr("Me&tadata:"), tr("What the opened file says about camera, date, author and place"));
    m_metadata->addItem(tr("All"), int(KeptMetadata::All));
    m_metadata->addItem(tr("All but the place"), int(KeptMetadata::AllButPlace));
    m_metadata->addItem(tr("None"), int(KeptMetadata::None));
}

void ExportPanel::buildQuality(QFormLayout& form)
{
    m_qualityRow = new QWidget;
    auto* row = new QHBoxLayout(m_qualityRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kRowSpacing);
    m_quality = named(new QSlider(Qt::Horizontal), "qualitySlider", tr("Quality"), tr("Less makes a smaller file"));
    m_quality->setRange(1, 100);
    auto* field = named(new QSpinBox, "qualityField", tr("Quality"), m_quality->toolTip());
    field->setRange(1, 100);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    connect(m_quality, &QSlider::valueChanged, field, &QSpinBox::setValue);
    connect(field, &QSpinBox::valueChanged, m_quality, &QSlider::setValue);
    row->addWidget(m_quality, 1);
    row->addWidget(field);
    form.addRow(tr("&Quality:"), m_qualityRow);
    qobject_cast<QLabel*>(form.labelForField(m_qualityRow))->setBuddy(m_quality);
}

void ExportPanel::buildSize(QFormLayout& form)
{
    auto* part = new QWidget;
    auto* row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kRowSpacing);
    m_width = named(new QSpinBox, "widthField", tr("Width"), tr("Width of the exported picture in pixels"));
    m_height = named(new QSpinBox, "heightField", tr("Height"), tr("Height of the exported picture in pixels"));
    for (QSpinBox* field : {m_width, m_height}) {
        field->setRange(1, kLongestSide);
        field->setKeyboardTracking(false);
        field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    }
    row->addWidget(m_width, 1);
    row->addWidget(new QLabel(QStringLiteral("×")));
    row->addWidget(m_height, 1);
    row->addWidget(new QLabel(tr("px")));
    form.addRow(tr("&Size:"), part);
    qobject_cast<QLabel*>(form.labelForField(part))->setBuddy(m_width);
    m_proportions =
        addBox(form, "proportionsBox", tr("&Keep proportions"), tr("The other side follows the one that is typed"));
    m_proportions->setChecked(true);
}

QComboBox* ExportPanel::addMenu(QFormLayout& form, const char* name, const QString& caption, const QString& hint)
{
    QString plain = caption;
    plain.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
    auto* menu = named(new QComboBox, name, plain, hint);
    form.addRow(caption, menu);
    return menu;
}

QCheckBox* ExportPanel::addBox(QFormLayout& form, const char* name, const QString& text, const QString& hint)
{
    QString plain = text;
    auto* box = named(new PanelCheckBox(text), name, plain.remove(QLatin1Char('&')), hint);
    form.addRow(QString(), box);
    return box;
}
