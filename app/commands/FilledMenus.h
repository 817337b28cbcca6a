// The menus whose items come and go.
#pragma once

#include <QCoreApplication>

#include <functional>

class QMenu;
class UndoManager;

/// Fills menus before they are shown.
class FilledMenus {
    Q_DECLARE_TR_FUNCTIONS(FilledMenus)

public:
    static void fillRecent(QMenu& menu, const std::function<void(const QString& path)>& open);
    /// `go` gets so many redos, or undos when negative.
    static void fillUndoHistory(QMenu& menu, const UndoManager& undo, const std::function<void(int moves)>& go);

private:
    static QAction& add(QMenu& menu, QString title, const QString& hint, std::function<void()> run);
};
