#include "controls/editors/WhiteEditor.h"

#include "controls/editors/DisplayLight.h"
#include "controls/panel/CaptionLabel.h"
#include "controls/panel/ParameterText.h"
#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/WhitePoint.h"
#include "platform/foundation/TintedIcon.h"
#include "widgets/ReadoutField.h"
#include "widgets/rows/NumberRow.h"
#include "widgets/ValueSlider.h"

#include <cmath>

#include <QGridLayout>
#include <QPointer>
#include <QPushButton>

namespace {

constexpr double kCoolest = 20000, kWarmest = 2000, kDaylight = 6500; // kelvin
constexpr double kMostTint = 150;
constexpr double kAround = 2; // pixels beside the clicked one that are averaged, against noise

/// The mean light about a place.
std::array<double, 3> lightAt(const CIImage& picture, CIPoint place)
{
    const CIRect around{std::floor(place.x) - kAround, std::floor(place.y) - kAround, 2 * kAround + 1, 2 * kAround + 1};
    const CIBitmap pixels = CIContext().render(picture, around);
    std::array<double, 3> light{};
    for (int y = 0; y < pixels.height(); ++y) {
        const std::span<const std::uint8_t> row = pixels.row<std::uint8_t>(y);
        for (std::size_t i = 0; i < row.size(); ++i)
            if (i % 4 < 3) // weighted by opacity: nothing lies beyond the picture
                light[i % 4] += lightFromDisplay(row[i] / 255.0) * row[i | 3];
    }
    return light;
}

} // namespace

WhiteEditor::WhiteEditor(const EditedInput& input, QWidget* parent)
    : InputEditor(input, parent)
    , m_key(keysOf(*input.filter, Role::White).front())
    , m_targetKey(keysOf(*input.filter, Role::White).back())
    , m_eyedropper(new QPushButton(tr("Pick a Grey"), this))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 2, 0, 8);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    grid->setColumnMinimumWidth(0, 90);
    grid->setColumnStretch(1, 1);
    m_temperature = addNumber(*grid, 0, tr("Temperature"), 0);
    m_tint = addNumber(*grid, 1, tr("Tint"), 1);
    m_temperature->slider->setToolTip(
        tr("The light of the picture in kelvin: to the right, the picture becomes warmer"));
    m_tint->slider->setToolTip(tr("To the right, the picture becomes more magenta, to the left greener"));

    m_eyedropper->setIcon(tintedIcon(QStringLiteral("eyedropper")));
    m_eyedropper->setFont(rowFont(font()));
    m_eyedropper->setProperty("mini", true);
    m_eyedropper->setFixedHeight(22);
    m_eyedropper->setCheckable(true);
    m_eyedropper->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard to the picture
    m_eyedropper->setAutoDefault(false);
    m_eyedropper->setToolTip(tr("Click on something in the picture that is grey or white. Escape leaves it as it is."));
    connect(m_eyedropper, &QPushButton::clicked, this, &WhiteEditor::pick);
    grid->addWidget(m_eyedropper, 2, 1, 1, 2, Qt::AlignLeft);
}

NumberRow* WhiteEditor::addNumber(QGridLayout& grid, int line, const QString& caption, std::size_t component)
{
    const bool isKelvin = component == 0;
    const NumberLook look{.min = isKelvin ? std::log10(kWarmest) : -kMostTint,
        .max = isKelvin ? std::log10(kCoolest) : kMostTint,
        .mark = isKelvin ? std::log10(kDaylight) : 0,
        .isFactor = isKelvin, // as the eye tells them apart
        .decimals = 0};
    ValueBinding number = binding(m_key);
    number.get = [get = number.get, component] { return get().toVector().valueAtIndex(component); };
    number.standard = [standard = number.standard, component] { return standard().toVector().valueAtIndex(component); };
    number.set = [get = binding(m_key).get, set = number.set, component](const CIValue& changed) {
        const CIVector old = get().toVector();
        set(component == 0 ? CIVector{changed.toDouble(), old.Y()} : CIVector{old.X(), changed.toDouble()});
    };
    auto* row = new NumberRow(this, look, std::move(number));
    auto* label = new CaptionLabel(caption, this);
    row->slider->setAccessibleName(caption);
    row->readout->setFont(rowFont(font()));
    row->readout->setFixedSize(48, 18);
    row->readout->setAccessibleName(caption);
    row->readout->setToolTip(tr("%1: type a number").arg(caption));
    connect(label, &CaptionLabel::doubleClicked, row, &ValueRow::reset);
    grid.addWidget(label, line, 0);
    grid.addWidget(row->slider, line, 1);
    grid.addWidget(row->readout, line, 2);
    return row;
}

void WhiteEditor::showValues()
{
    m_temperature->show();
    m_tint->show();
}

void WhiteEditor::pick()
{
    if (!m_eyedropper->isChecked())
        return m_input.master.pickPlace(nullptr);
    m_input.master.pickPlace([editor = QPointer<WhiteEditor>(this)](std::optional<CIPoint> place) {
        if (!editor)
            return; // another filter was chosen
        editor->m_eyedropper->setChecked(false);
        if (place)
            editor->takeGrey(*place);
    });
}

void WhiteEditor::takeGrey(CIPoint place)
{
    const CIPoint neutral =
        CINeutralForColor(lightAt(m_input.master.backImage(), place), value(m_targetKey).toVector().point());
    setValue(m_key, CIVector{std::round(neutral.x), std::round(neutral.y)});
    showValues();
}
