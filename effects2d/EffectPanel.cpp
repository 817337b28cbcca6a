#include "effects2d/EffectPanel.h"

#include "effects2d/EffectMaster.h"
#include "platform/foundation/UndoManager.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/PanelPopUp.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <cmath>
#include <optional>

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace {

constexpr int kReadoutWidth = 52; // points
constexpr QSize kButtonSize(96, 24);

UndoManager* undoManager()
{
    EffectMaster* master = EffectMaster::mainController();
    return master ? master->undoManager() : nullptr;
}

/// The row's widget around the toolkit's control, which takes the names and the focus.
template <class Widget>
class ControlOf : public EffectControl {
protected:
    ControlOf()
        : m_widget(new Widget(this))
        , m_row(new QHBoxLayout(this))
    {
        m_row->setContentsMargins(0, 0, 0, 0);
        m_row->addWidget(m_widget);
        setFocusProxy(m_widget);
    }

    Widget* m_widget;
    QHBoxLayout* m_row;
};

class PopUp : public ControlOf<PanelPopUp> {
public:
    explicit PopUp(const QStringList& titles)
    {
        m_widget->addItems(titles);
        connect(m_widget, &PanelPopUp::activated, this, [this](int index) {
            if (index != std::exchange(m_last, index))
                emit changed();
        });
    }
    CIValue value() const override { return m_widget->currentIndex(); }
    void setValue(const CIValue& value) override
    {
        m_last = int(value.toDouble());
        m_widget->setCurrentIndex(m_last);
    }

private:
    int m_last = 0;
};

class Well : public ControlOf<ColorWell> {
public:
    Well()
    {
        m_row->addStretch();
        connect(m_widget, &ColorWell::colorTried, this, [this](const QColor& color) {
            m_tried = color;
            tryValue();
            m_tried.reset();
        });
        connect(m_widget, &ColorWell::colorPicked, this, &EffectControl::changed);
    }
    CIValue value() const override
    {
        const QColor c = m_tried.value_or(m_widget->color());
        return CIColor(c.redF(), c.greenF(), c.blueF(), c.alphaF());
    }
    void setValue(const CIValue& value) override
    {
        const CIColor c = value.toColor();
        const auto component = [](double v) { return float(std::clamp(v, 0.0, 1.0)); };
        m_widget->setColor(
            QColor::fromRgbF(component(c.red()), component(c.green()), component(c.blue()), component(c.alpha())));
    }

private:
    /// Only seen until the color is picked or given up; then the old one has been tried last.
    void tryValue()
    {
        UndoManager* undo = undoManager();
        if (undo)
            undo->disableUndoRegistration();
        emit changed();
        if (undo)
            undo->enableUndoRegistration();
    }

    std::optional<QColor> m_tried;
};

class Switch : public ControlOf<PanelCheckBox> {
public:
    Switch() { connect(m_widget, &PanelCheckBox::clicked, this, &EffectControl::changed); }
    CIValue value() const override { return m_widget->isChecked(); }
    void setValue(const CIValue& value) override { m_widget->setChecked(value.toBool()); }
};

class PushButton : public ControlOf<QPushButton> {
public:
    explicit PushButton(const QString& title)
    {
        m_widget->setText(title);
        // A style sheet gives buttons a size of their own, so a plain fixed size wouldn't hold.
        m_widget->setStyleSheet(
            QStringLiteral("QPushButton { padding: 0; border-width: 1px; border-style: solid;"
                           " min-width: %1px; max-width: %1px; min-height: %2px; max-height: %2px }")
                .arg(kButtonSize.width() - 2)
                .arg(kButtonSize.height() - 2));
        connect(m_widget, &QPushButton::clicked, this, &EffectControl::changed);
    }
    CIValue value() const override { return {}; }
    void setValue(const CIValue&) override { }
};

/// A slider with an editable readout. A drag is one step for undo.
class Slider : public ControlOf<ValueSlider> {
public:
    Slider(const ParameterFacts& range, double standard)
        : m_range(range)
        , m_readout(new ReadoutField(this))
    {
        m_widget->setRange(range.min, range.max);
        m_widget->setWhole(range.decimals == 0);
        m_widget->setStandardValue(standard);
        m_readout->setFixedWidth(kReadoutWidth);
        m_readout->setAlignment(Qt::AlignRight);
        m_row->addWidget(m_readout);
        connect(m_widget, &ValueSlider::pressed, this, &Slider::begin);
        connect(m_widget, &ValueSlider::released, this, &Slider::end);
        connect(m_widget, &ValueSlider::valueChanged, this, &Slider::moved);
        connect(m_widget, &ValueSlider::standardValueWanted, this, [this, standard] { userSets(standard); });
        connect(m_readout, &ReadoutField::committed, this, &Slider::typed);
    }
    ~Slider() override
    {
        if (m_dragged)
            closeGroup();
    }
    CIValue value() const override { return m_value; }
    void setValue(const CIValue& value) override
    {
        m_value = value.toDouble();
        m_widget->setValue(m_value);
        showValue(m_value);
    }

private:
    double rounded(double value) const
    {
        const double steps = std::pow(10, m_range.decimals); // per unit
        return std::round(value * steps) / steps;
    }
    void showValue(double value)
    {
        const QString text = QLocale().toString(value, 'f', m_range.decimals);
        m_readout->setShownText(text);
        m_widget->setValueText(text);
    }
    void begin()
    {
        m_dragged = true;
        if (UndoManager* undo = undoManager())
            undo->beginUndoGrouping();
    }
    void end()
    {
        m_dragged = false;
        if (!m_range.continuous)
            userSets(rounded(m_widget->value()));
        closeGroup();
    }
    static void closeGroup()
    {
        if (UndoManager* undo = undoManager())
            undo->endUndoGrouping();
    }
    void moved()
    {
        const double value = rounded(m_widget->value());
        if (m_dragged && !m_range.continuous)
            showValue(value);
        else
            userSets(value);
    }
    void userSets(double value)
    {
        if (value == rounded(m_value))
            return;
        setValue(value);
        emit changed();
    }
    void typed()
    {
        bool isNumber = false;
        double number = QLocale().toDouble(m_readout->text(), &isNumber);
        if (!isNumber)
            number = QLocale::c().toDouble(m_readout->text(), &isNumber);
        m_readout->restore();
        // Leaving the field as it was is no change. "nan" is taken for a number.
        if (isNumber && !std::isnan(number))
            userSets(rounded(std::clamp(number, m_range.min, m_range.max)));
    }

    ParameterFacts m_range;
    ReadoutField* m_readout;
    double m_value = 0; // of the parameter, which may lie between steps
    bool m_dragged = false;
};

EffectControl* newControl(const EffectParameter& parameter, double standard)
{
    switch (parameter.kind()) {
    case EffectParameter::Kind::Switch:
        return new Switch;
    case EffectParameter::Kind::ColorWell:
        return new Well;
    case EffectParameter::Kind::Slider:
        return new Slider(parameter.facts, standard);
    case EffectParameter::Kind::PopUp:
        break;
    }
    QStringList titles;
    for (const char* title : parameter.facts.titles)
        titles << EffectPanel::tr(title);
    return new PopUp(titles);
}

} // namespace

EffectPanel::EffectPanel(QWidget* parent)
    : QWidget(parent)
    , m_rows(new QGridLayout(this))
{
    m_rows->setContentsMargins(16, 12, 16, 12);
    m_rows->setHorizontalSpacing(8);
    m_rows->setVerticalSpacing(8);
    m_rows->setColumnStretch(1, 1);
}

EffectPanel& EffectPanel::placedIn(QWidget& view)
{
    auto* panel = new EffectPanel(&view);
    if (!view.layout()) {
        auto* layout = new QVBoxLayout(&view);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setAlignment(Qt::AlignTop);
    }
    view.layout()->addWidget(panel);
    panel->show();
    return *panel;
}

void EffectPanel::connectControl(EffectControl& control, const QString& name, const QString& toolTip, Action action)
{
    for (QWidget* widget : {control.focusProxy(), static_cast<QWidget*>(control.findChild<ReadoutField*>())})
        if (widget) {
            widget->setAccessibleName(name);
            widget->setToolTip(toolTip);
        }
    connect(&control, &EffectControl::changed, &control, [&control, action = std::move(action)] { action(&control); });
}

void EffectPanel::addParameter(const EffectParameter& parameter, const CIValue& value, Action action)
{
    const QString label = tr(parameter.text.label), toolTip = tr(parameter.text.tip);
    CIValue shown = parameter.shown(value);
    if (parameter.facts.startsWhole)
        shown = std::trunc(shown.toDouble());
    EffectControl* control = newControl(parameter, shown.toDouble());
    control->setValue(shown);
    connectControl(*control, label, toolTip, std::move(action));
    if (parameter.facts.beside) {
        static_cast<QBoxLayout*>(m_last->layout())->addWidget(control, 1);
        return;
    }
    auto* caption = new QLabel(label, this);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caption->setToolTip(toolTip);
    caption->setBuddy(control->focusProxy());
    const int row = m_rows->rowCount();
    m_rows->addWidget(caption, row, 0);
    m_rows->addWidget(control, row, 1);
    m_last = control;
}

void EffectPanel::addPushButton(const QString& title, const QString& toolTip, Action action)
{
    auto* button = new PushButton(title);
    connectControl(*button, title, toolTip, std::move(action));
    m_rows->addWidget(button, m_rows->rowCount(), 0, 1, 2, Qt::AlignHCenter);
}

QString EffectPanel::undoName(const ParameterText& text)
{
    QString noun = tr(text.noun ? text.noun : text.label);
    if (noun.endsWith(QLatin1Char(':')))
        noun.chop(1);
    return tr("Change to %1", "%1 is a parameter of an effect").arg(noun.trimmed());
}
