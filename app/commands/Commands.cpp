#include "app/commands/Commands.h"

#include "app/Controller.h"
#include "platform/foundation/TintedIcon.h"
#include "widgets/Overlay.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolButton>

#include <map>

Commands::Commands(QMainWindow& window)
    : QObject(&window)
    , m_window(window)
    , m_contextMenu(*new QMenu(&window))
{
    for (const Command& menu : Command::all())
        addMenu(*window.menuBar()->addMenu(Command::translated(menu.text)), menu);
    fillContextMenu();
}

void Commands::addMenu(QMenu& menu, const Command& command)
{
    menu.setObjectName(QLatin1String(command.name));
    for (const Command& item : command.items)
        add(menu, item);
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu, &command] {
        if (command.fill && m_controller)
            command.fill(*m_controller, menu);
        validateAll();
    });
    if (command.enabled)
        m_rows.insert(menu.menuAction(), &command);
}

void Commands::add(QMenu& menu, const Command& command)
{
    if (!command.name)
        menu.addSeparator();
    else if (command.fill || !command.items.empty())
        addMenu(*menu.addMenu(Command::translated(command.text)), command);
    else
        menu.addAction(newAction(command));
}

QAction* Commands::newAction(const Command& command)
{
    auto* action = new QAction(Command::translated(command.text), &m_window);
    action->setObjectName(QLatin1String(command.name));
    action->setStatusTip(Command::translated(command.hint));
    action->setShortcuts(command.keys);
    action->setCheckable(command.isSwitch || command.checked);
    if (command.icon)
        action->setIcon(tintedIcon(QLatin1String(command.icon)));
    action->setIconVisibleInMenu(false);
    connect(action, &QAction::triggered, this, [this, &command] {
        if (command.run && m_controller)
            command.run(*m_controller);
        validateAll();
    });
    if (command.button)
        connectButton(*action, command.button);
    m_rows.insert(action, &command);
    return action;
}

/// A tool button takes all from the action except its tip, which says more than the menu does.
void Commands::connectButton(QAction& action, const char* name)
{
    auto* button = m_window.findChild<QAbstractButton*>(QLatin1String(name));
    if (auto* tool = qobject_cast<QToolButton*>(button)) {
        action.setToolTip(
            QStringLiteral("%1 (%2)").arg(tool->toolTip(), action.shortcut().toString(QKeySequence::NativeText)));
        tool->setDefaultAction(&action);
    } else {
        connect(button, &QAbstractButton::clicked, &action, &QAction::trigger);
        connect(&action, &QAction::enabledChanged, button, &QWidget::setEnabled);
    }
}

void Commands::fillContextMenu()
{
    std::map<int, QList<QAction*>> groups;
    for (const Command& menu : Command::all())
        for (const Command& command : menu.items)
            if (command.pictureMenu)
                groups[command.pictureMenu] << &action(command.name);
    for (const auto& [group, actions] : groups) {
        if (!m_contextMenu.isEmpty())
            m_contextMenu.addSeparator();
        m_contextMenu.addActions(actions);
    }
    connect(&m_contextMenu, &QMenu::aboutToShow, this, &Commands::validateAll);
}

QAction& Commands::action(const char* name) const { return *m_window.findChild<QAction*>(QLatin1String(name)); }

bool Commands::validate(QAction& item)
{
    const Command* command = m_rows.value(&item);
    if (!command || !m_controller)
        return item.isEnabled();
    if (command->title)
        item.setText(command->title(*m_controller));
    if (command->checked)
        item.setChecked(command->checked(*m_controller));
    const bool isFree = command->whileOpening || (!m_controller->opening().isShown() && !Overlay::openIn(m_window));
    item.setEnabled(isFree && (!command->enabled || command->enabled(*m_controller)));
    return item.isEnabled();
}

void Commands::validateAll()
{
    for (auto row = m_rows.keyBegin(); row != m_rows.keyEnd(); ++row)
        validate(**row);
}
