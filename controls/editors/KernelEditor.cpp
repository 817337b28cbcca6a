#include "controls/editors/KernelEditor.h"

#include "controls/panel/ParameterText.h"
#include "platform/coreimage/CIContext.h"
#include "platform/foundation/Appearance.h"
#include "widgets/PanelPopUp.h"
#include "widgets/ReadoutField.h"
#include "widgets/rows/VectorRow.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr int kPictureSide = 54, kFieldHeight = 20, kGap = 2, kMostWidth = 76; // points

/// Whether opacity is weighted as the colors are: weights with a sum of 0 then leave nothing to see.
bool weighsOpacity(const CIFilter& filter, const std::string& key, int count)
{
    const std::shared_ptr<CIFilter> copy = CIFilter::filterWithName(filter.name());
    copy->setDefaults();
    copy->setValueForKey(CIVector(KernelWeights(std::size_t(count), 0.0)), key);
    copy->setValueForKey(CIImage::fromBitmap(CIBitmap(1, 1, CIFormat::RGBA8, CIAlpha::Opaque)), "inputImage");
    const CIBitmap result = CIContext().render(copy->outputImage(), {0, 0, 1, 1});
    return result.isNull() || result.row<std::uint8_t>(0)[3] == 0;
}

bool areNear(const KernelWeights& a, const KernelWeights& b)
{
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [](double one, double other) { return std::abs(one - other) < 1e-6; });
}

} // namespace

// --- the picture ---

KernelPicture::KernelPicture(QWidget* parent)
    : QWidget(parent)
{
    setFixedSize(kPictureSide, kPictureSide);
}

void KernelPicture::setWeights(const KernelWeights& weights, int columns)
{
    m_weights = weights;
    m_columns = columns;
    update();
}

void KernelPicture::paintEvent(QPaintEvent*)
{
    double most = 0;
    for (double weight : m_weights)
        most = std::max(most, std::abs(weight));
    QPainter painter(this);
    const int rows = int(m_weights.size()) / m_columns, longest = std::max(m_columns, rows);
    // Cells of whole pixels of the screen, lest lines shine through between them.
    const auto edge = [&](int cell, int cells) {
        return kPictureSide / 2 + (2 * cell - cells) * (kPictureSide - 2) / (2 * longest);
    };
    for (int i = 0; i < m_columns * rows; ++i) {
        const double part = most > 0 ? m_weights[std::size_t(i)] / most : 0; // -1 to 1
        const int grey = int(std::lround(127.5 + 127.5 * part));
        const int column = i % m_columns, row = i / m_columns;
        const QPoint corner(edge(column, m_columns), edge(row, rows));
        const QPoint next(edge(column + 1, m_columns), edge(row + 1, rows));
        painter.fillRect(QRect(corner, next - QPoint(1, 1)), QColor(grey, grey, grey));
    }
    painter.setPen(Appearance::shared().look().border);
    const QPoint corner(edge(0, m_columns), edge(0, rows)), last(edge(m_columns, m_columns), edge(rows, rows));
    painter.drawRect(QRect(corner - QPoint(1, 1), last));
}

// --- the editor ---

KernelEditor::KernelEditor(const EditedInput& input, QWidget* parent)
    : InputEditor(input, parent)
    , m_columns(std::max(1, input.attributes().columns))
    , m_rows(int(input.attributes().defaultValue.toVector().count()) / m_columns)
    , m_picture(new KernelPicture(this))
    , m_presets(new PanelPopUp(this))
    , m_normalize(new QPushButton(tr("Normalize"), this))
    , m_sum(new QLabel(this))
    , m_fields(new VectorRow(this, m_columns * m_rows, binding(input.key), shortText))
{
    m_presets->setFont(rowFont(font()));
    m_presets->setAccessibleName(tr("Known weights"));
    m_presets->setToolTip(tr("Sets all weights to ones that are known by a name"));
    m_presets->addItem(tr("Own weights"));
    const bool needsSum = weighsOpacity(*input.filter, input.key, m_columns * m_rows);
    for (const KernelPreset& preset : kernelPresets())
        if (preset.isFor(m_columns, m_rows) && !(needsSum && preset.hasNoSum))
            m_presets->addItem(QCoreApplication::translate("KernelPreset", preset.name),
                QVariant::fromValue(preset.weights(m_columns, m_rows)));
    connect(m_presets, &QComboBox::activated, this, [this](int index) {
        if (index > 0)
            setWeights(m_presets->itemData(index).value<KernelWeights>());
        else
            showSummary();
    });
    m_normalize->setFont(rowFont(font()));
    m_normalize->setProperty("mini", true);
    m_normalize->setAutoDefault(false);
    m_normalize->setToolTip(tr("Makes the sum of all weights 1, so that the picture stays as light as it is"));
    connect(m_normalize, &QPushButton::clicked, this, [this] {
        if (const auto result = normalized(weights()))
            setWeights(*result);
    });
    m_sum->setFont(rowFont(font()));
    m_sum->setForegroundRole(QPalette::PlaceholderText);

    auto* grid = new QGridLayout;
    fill(*grid);
    auto* top = new QGridLayout;
    top->setHorizontalSpacing(8);
    top->setVerticalSpacing(4);
    top->addWidget(m_picture, 0, 0, 2, 1, Qt::AlignTop);
    top->addWidget(m_presets, 0, 1, 1, 2);
    top->addWidget(m_normalize, 1, 1);
    top->addWidget(m_sum, 1, 2);
    top->setColumnStretch(2, 1);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(4, 2, 4, 8);
    all->setSpacing(8);
    all->addLayout(top);
    all->addLayout(grid);
    showSummary();
    connect(this, &InputEditor::edited, this, &KernelEditor::showSummary);
}

void KernelEditor::fill(QGridLayout& grid)
{
    grid.setSpacing(kGap);
    const std::vector<ReadoutField*>& fields = m_fields->readouts();
    for (int i = 0; i < int(fields.size()); ++i) {
        ReadoutField& field = *fields[std::size_t(i)];
        const int row = i / m_columns, column = i % m_columns;
        field.setFont(rowFont(font()));
        field.setProperty("bezeled", true);
        field.setMinimumWidth(0);
        field.setMaximumWidth(kMostWidth);
        field.setFixedHeight(kFieldHeight);
        field.setObjectName(QStringLiteral("weight%1").arg(i));
        field.setAccessibleName(tr("Weight in row %1, column %2").arg(row + 1).arg(column + 1));
        field.installEventFilter(this);
        grid.addWidget(&field, row, column);
    }
    grid.setColumnStretch(m_columns, 1); // the fields stay together where there is more room
}

bool KernelEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const auto& fields = m_fields->readouts();
        const auto at = int(std::find(fields.begin(), fields.end(), watched) - fields.begin());
        const int to = key == Qt::Key_Up ? at - m_columns : key == Qt::Key_Down ? at + m_columns : -1;
        if (at < int(fields.size()) && to >= 0 && to < int(fields.size())) {
            fields[std::size_t(to)]->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return InputEditor::eventFilter(watched, event);
}

KernelWeights KernelEditor::weights() const
{
    KernelWeights values = value(m_input.key).toVector().values();
    values.resize(std::size_t(m_columns * m_rows));
    return values;
}

void KernelEditor::setWeights(const KernelWeights& weights)
{
    setValue(m_input.key, CIVector(weights));
    showValues();
}

void KernelEditor::showValues()
{
    m_fields->show();
    showSummary();
}

void KernelEditor::showSummary()
{
    const KernelWeights now = weights();
    m_picture->setWeights(now, m_columns);
    m_sum->setText(tr("Sum %1").arg(shortText(std::accumulate(now.begin(), now.end(), 0.0))));
    m_normalize->setEnabled(normalized(now).has_value());
    int known = 0;
    for (int i = 1; i < m_presets->count() && known == 0; ++i)
        if (areNear(m_presets->itemData(i).value<KernelWeights>(), now))
            known = i;
    m_presets->setCurrentIndex(known);
}
