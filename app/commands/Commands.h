// The menus of the window, and all that does the same as their items.
#pragma once

#include "app/commands/Command.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;

/// Makes menus, keys and the context menu of the table, and connects the buttons. The actions are the window's
/// children.
class Commands : public QObject {
public:
    explicit Commands(QMainWindow& window);

    /// Carries the commands out; null for nobody.
    void setController(Controller* controller) { m_controller = controller; }
    QAction& action(const char* name) const;
    QMenu& contextMenu() { return m_contextMenu; }

    /// Enables, names and ticks the item; answers whether it is enabled.
    bool validate(QAction& item);
    void validateAll();

private:
    void add(QMenu& menu, const Command& command);
    void addMenu(QMenu& menu, const Command& command);
    QAction* newAction(const Command& command);
    void connectButton(QAction& action, const char* name);
    void fillContextMenu();

    QMainWindow& m_window;
    QMenu& m_contextMenu;
    Controller* m_controller = nullptr;
    QHash<QAction*, const Command*> m_rows;
};
