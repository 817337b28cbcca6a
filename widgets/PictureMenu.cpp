#include "widgets/PictureMenu.h"

#include <QContextMenuEvent>
#include <QMenu>

QPoint pictureMenuPlace(const QWidget& view, const QContextMenuEvent& event)
{
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    return byKey ? view.mapToGlobal(view.rect().center()) : event.globalPos();
}

void popUpPictureMenu(QMenu* menu, const QPoint& globalPosition)
{
    if (!menu)
        return;
    QFont font = menu->font();
    font.setPixelSize(11);
    menu->setFont(font);
    menu->popup(globalPosition);
}
