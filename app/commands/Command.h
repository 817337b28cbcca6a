// What a command of the window is.
#pragma once

#include <QCoreApplication>
#include <QKeySequence>
#include <QList>

#include <functional>
#include <vector>

class Controller;
class QMenu;

/// A row of the table: a menu's item, its keys, its button, what it does and when. One without a name is a line between
/// items. Texts are English; `translated` says them in the user's language.
struct Command {
    const char* name = nullptr; // of the QAction or QMenu, by which the help book knows it
    const char* text = nullptr; // with the letter for the keyboard
    const char* hint = nullptr; // what it does, in a sentence
    const char* icon = nullptr;
    QList<QKeySequence> keys = {};
    const char* button = nullptr; // a button of the window that does the same
    int pictureMenu = 0; // the group of the picture's context menu in which it stands as well
    std::function<void(Controller&)> run = {};
    std::function<QString(Controller&)> title = {}; // replaces the text
    std::function<bool(Controller&)> enabled = {}; // if it isn't always
    std::function<bool(Controller&)> checked = {}; // for an item with a check mark that tells something
    bool isSwitch = false; // has a check mark that changes with each use
    bool whileOpening = false; // can be used while a picture is being opened
    // Submenus
    std::function<void(Controller&, QMenu&)> fill = {}; // before it is shown
    std::vector<Command> items = {};

    /// The menus of the menu bar, with all in them.
    static const std::vector<Command>& all();
    static QString translated(const char* text) { return QCoreApplication::translate("Command", text); }
};
