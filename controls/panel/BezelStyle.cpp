#include "controls/panel/BezelStyle.h"

#include <QPushButton>
#include <QStyle>
#include <QVariant>

int bezelStyle(const QAbstractButton& button)
{
    if (const QVariant style = button.property("bezelStyle"); style.isValid())
        return style.toInt();
    const auto* push = qobject_cast<const QPushButton*>(&button);
    return push && !push->isFlat() ? BezelStyle::Rounded : BezelStyle::None;
}

void setBezelStyle(QAbstractButton& button, int style)
{
    button.setProperty("bezelStyle", style);
    button.style()->unpolish(&button); // the style sheet looks at the property
    button.style()->polish(&button);
}
