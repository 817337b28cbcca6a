#include "effects2d/EffectControl.h"

#include "effects2d/EffectMaster.h"
#include "effects2d/EffectPanel.h"
#include "platform/foundation/UndoManager.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/PanelPopUp.h"
#include "widgets/ReadoutField.h"
#include "widgets/rows/ChoiceRow.h"
#include "widgets/rows/ColorRow.h"
#include "widgets/rows/NumberRow.h"
#include "widgets/rows/SwitchRow.h"
#include "widgets/ValueSlider.h"

#include <cmath>

#include <QHBoxLayout>

namespace {

constexpr int kReadoutWidth = 52; // points

/// Calls the undo manager, if there is one now.
void tellUndo(void (UndoManager::*operation)())
{
    EffectMaster* master = EffectMaster::mainController();
    if (UndoManager* undo = master ? master->undoManager() : nullptr)
        (undo->*operation)();
}

} // namespace

EffectControl::EffectControl(const EffectParameter& parameter, const CIValue& value, QWidget* parent)
    : QWidget(parent)
    , m_value(parameter.shown(value))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    m_row = newRow(parameter,
        {.get = [this] { return m_value; },
            .set = [this](const CIValue& chosen) { take(chosen); },
            .standard = [standard = m_value] { return standard; },
            .begin = [] { tellUndo(&UndoManager::beginUndoGrouping); },
            .end = [] { tellUndo(&UndoManager::endUndoGrouping); },
            .preview =
                [this](const CIValue& tried) {
                    tellUndo(&UndoManager::disableUndoRegistration);
                    take(tried);
                    tellUndo(&UndoManager::enableUndoRegistration);
                }});
    if (auto* number = dynamic_cast<NumberRow*>(m_row); number && parameter.facts.startsWhole)
        number->slider->setValue(std::trunc(m_value.toDouble()));
}

/// The row may bring back what was there while others were tried, so it goes first.
EffectControl::~EffectControl() { delete m_row; }

ValueRow* EffectControl::newRow(const EffectParameter& parameter, ValueBinding binding)
{
    const ParameterFacts& facts = parameter.facts;
    switch (parameter.kind()) {
    case EffectParameter::Kind::Switch: {
        auto* row = new SwitchRow(this, std::move(binding));
        addToRow(row->box, parameter.text);
        return row;
    }
    case EffectParameter::Kind::ColorWell: {
        auto* row = new ColorRow(this, std::move(binding));
        addToRow(row->well, parameter.text);
        static_cast<QHBoxLayout*>(layout())->addStretch();
        return row;
    }
    case EffectParameter::Kind::PopUp: {
        QStringList titles;
        for (const char* title : facts.titles)
            titles << EffectPanel::tr(title);
        auto* row = new ChoiceRow(this, titles, std::move(binding));
        addToRow(row->menu, parameter.text);
        return row;
    }
    case EffectParameter::Kind::Slider:
        break;
    }
    auto* row = new NumberRow(this,
        {.min = facts.min,
            .max = facts.max,
            .mark = m_value.toDouble(),
            .whole = facts.decimals == 0,
            .continuous = facts.continuous,
            .decimals = facts.decimals},
        std::move(binding));
    row->readout->setFixedWidth(kReadoutWidth);
    row->readout->setAlignment(Qt::AlignRight);
    addToRow(row->slider, parameter.text);
    addToRow(row->readout, parameter.text);
    return row;
}

void EffectControl::addToRow(QWidget* widget, const ParameterText& text)
{
    widget->setAccessibleName(EffectPanel::tr(text.label));
    widget->setToolTip(EffectPanel::tr(text.tip));
    layout()->addWidget(widget);
    if (!focusProxy())
        setFocusProxy(widget);
}

void EffectControl::setValue(const CIValue& value)
{
    m_value = value;
    m_row->show();
}

void EffectControl::take(const CIValue& value)
{
    m_value = value;
    emit changed();
}
