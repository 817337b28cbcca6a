#include "controls/crop/StraightenPanel.h"

#include "controls/crop/StraightenCanvas.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/ValueSlider.h"

#include <algorithm>
#include <numbers>

#include <QBoxLayout>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kRange = 45, kFineRange = 5; // degrees to each side
constexpr int kSliderWidth = 220; // points

} // namespace

StraightenPanel::StraightenPanel(QWidget* page, const CIImage& picture)
    : Overlay(page, tr("Straighten"), tr("Straighten"))
    , m_canvas(new StraightenCanvas(picture, this))
    , m_slider(new ValueSlider)
    , m_degrees(new QDoubleSpinBox)
    , m_fine(new PanelCheckBox(tr("Fine")))
    , m_fills(new PanelCheckBox(tr("Crop to Fill")))
{
    content().addWidget(m_canvas);
    acceptButton().setToolTip(tr("Turns the picture (Return)"));
    m_slider->setObjectName("straightenSlider");
    m_slider->setAccessibleName(tr("Angle"));
    m_slider->setToolTip(tr("Turns the picture; Shift makes it finer"));
    m_slider->setMinimumWidth(kSliderWidth);
    m_slider->setStandardValue(0);
    m_degrees->setObjectName("straightenField");
    m_degrees->setAccessibleName(tr("Angle"));
    m_degrees->setToolTip(tr("Degrees, counterclockwise"));
    m_degrees->setRange(-kRange, kRange);
    m_degrees->setSingleStep(0.1);
    m_degrees->setSuffix(QStringLiteral("°"));
    m_degrees->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_degrees->setAlignment(Qt::AlignRight);
    m_degrees->setKeyboardTracking(false);
    m_fine->setObjectName("straightenFineBox");
    m_fine->setToolTip(tr("The slider turns by up to five degrees from here"));
    m_fills->setObjectName("straightenFillBox");
    m_fills->setToolTip(tr("Cuts the empty corners off"));
    m_fills->setChecked(true);
    auto* reset = new QPushButton(tr("&Reset"));
    reset->setObjectName("straightenResetBtn");
    reset->setToolTip(tr("Shows the picture as it is"));
    bar().addWidget(m_slider, 1);
    for (QWidget* part : {static_cast<QWidget*>(m_degrees), static_cast<QWidget*>(m_fine),
             static_cast<QWidget*>(m_fills), static_cast<QWidget*>(reset)})
        bar().addWidget(part);

    connect(m_slider, &ValueSlider::valueChanged, this, [this] { setDegrees(m_slider->value()); });
    connect(m_slider, &ValueSlider::standardValueWanted, this, [this] { setDegrees(0); });
    connect(m_degrees, &QDoubleSpinBox::valueChanged, this, &StraightenPanel::setDegrees);
    connect(m_fine, &QCheckBox::toggled, this, &StraightenPanel::chooseRange);
    connect(m_fills, &QCheckBox::toggled, this, [this] { setDegrees(m_degrees->value()); });
    connect(m_canvas, &StraightenCanvas::turnWanted, this,
        [this](double further) { setDegrees(m_degrees->value() + further / kDegree); });
    connect(reset, &QPushButton::clicked, this, [this] { setDegrees(0); });
    chooseRange();
    m_canvas->setFocus();
}

double StraightenPanel::angle() const { return m_degrees->value() * kDegree; }

bool StraightenPanel::fills() const { return m_fills->isChecked(); }

void StraightenPanel::chooseRange()
{
    const bool isFine = m_fine->isChecked();
    const double middle = isFine ? m_degrees->value() : 0, range = isFine ? kFineRange : kRange;
    m_slider->setRange(std::max(middle - range, -kRange), std::min(middle + range, kRange));
    m_slider->setValue(m_degrees->value());
}

/// Field, slider and picture show the same angle.
void StraightenPanel::setDegrees(double degrees)
{
    const QSignalBlocker quiet(m_degrees);
    m_degrees->setValue(degrees);
    m_slider->setValue(m_degrees->value());
    m_canvas->setAngle(angle(), fills());
}
