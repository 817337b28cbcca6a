#include "controls/panel/BezelStyle.h"

#include "platform/foundation/Log.h"

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

void squareButtons(QWidget& view)
{
    for (QWidget* subview : view.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        squareButtons(*subview);
    if (auto* button = qobject_cast<QAbstractButton*>(&view); button && bezelStyle(*button) == BezelStyle::Rounded)
        setBezelStyle(*button, BezelStyle::TexturedSquare);
    qCInfo(lumivexLog, "class=%s", view.metaObject()->className());
}
