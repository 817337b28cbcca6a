#include "effects2d/EffectPanel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr QSize kButtonSize(96, 24);

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

void EffectPanel::addParameter(
    const EffectParameter& parameter, const CIValue& value, std::function<void(EffectControl*)> action)
{
    auto* control = new EffectControl(parameter, value, this);
    connect(control, &EffectControl::changed, control, [control, action = std::move(action)] { action(control); });
    if (parameter.facts.beside) {
        static_cast<QBoxLayout*>(m_last->layout())->addWidget(control, 1);
        return;
    }
    auto* caption = new QLabel(tr(parameter.text.label), this);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caption->setToolTip(tr(parameter.text.tip));
    caption->setBuddy(control->focusProxy());
    const int row = m_rows->rowCount();
    m_rows->addWidget(caption, row, 0);
    m_rows->addWidget(control, row, 1);
    m_last = control;
}

void EffectPanel::addPushButton(const QString& title, const QString& toolTip, std::function<void()> action)
{
    auto* button = new QPushButton(title, this);
    button->setAccessibleName(title);
    button->setToolTip(toolTip);
    // A style sheet gives buttons a size of their own, so a plain fixed size wouldn't hold.
    button->setStyleSheet(QStringLiteral("QPushButton { padding: 0; border-width: 1px; border-style: solid;"
                                         " min-width: %1px; max-width: %1px; min-height: %2px; max-height: %2px }")
                              .arg(kButtonSize.width() - 2)
                              .arg(kButtonSize.height() - 2));
    connect(button, &QPushButton::clicked, button, std::move(action));
    m_rows->addWidget(button, m_rows->rowCount(), 0, 1, 2, Qt::AlignHCenter);
}

QString EffectPanel::undoName(const ParameterText& text)
{
    QString noun = tr(text.noun ? text.noun : text.label);
    if (noun.endsWith(QLatin1Char(':')))
        noun.chop(1);
    return tr("Change to %1", "%1 is a parameter of an effect").arg(noun.trimmed());
}
