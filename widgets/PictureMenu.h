// The menu of a right click on a picture.
#pragma once

#include <QPoint>

class QContextMenuEvent;
class QMenu;
class QWidget;

/// Where the menu belongs on the screen: at the pointer, or in the middle of the view when a key asked for it.
QPoint pictureMenuPlace(const QWidget& view, const QContextMenuEvent&);
/// Shows the menu in its small type; nothing when there is none.
void popUpPictureMenu(QMenu* menu, const QPoint& globalPosition);
