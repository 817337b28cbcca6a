// The real window with the real controller, for tests.
#pragma once

#include "app/Controller.h"
#include "app/window/MainWindow.h"

#include <gtest/gtest.h>
#include <QMenu>
#include <QModelIndex>
#include <QTemporaryDir>

#include <functional>

namespace Ui {
class MainWindow;
}

class WindowTest : public testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;

    /// Answers the path of a small picture file, `width` by `height` pixels of one color.
    QString pictureFile(const QString& name, int width, int height);
    void openPicture(const QString& path); // and wait for it
    void waitUntilIdle(); // what was asked for has been done
    /// Has the controller do something that may take time, and waits for it.
    template <class Operation, class... Arguments>
    void perform(Operation operation, Arguments&&... arguments)
    {
        (controller.*operation)(std::forward<Arguments>(arguments)...);
        waitUntilIdle();
    }
    void pick(const QString& className); // a filter, as by a click
    QModelIndex rowOf(const QString& className) const; // the one in its group
    const OutlineItem* groupOf(const QString& className) const;
    void click(const OutlineItem* row);
    QAction* action(const char* name) const { return window.findChild<QAction*>(QLatin1String(name)); }
    QMenu& menu(const char* name) const { return *window.findChild<QMenu*>(QLatin1String(name)); }
    /// Runs the operation to its end, and presses the button of that text in the sheet that it opens.
    void answering(const QString& button, const std::function<void()>& operation);
    /// The same for several sheets, one after the other.
    void answering(QStringList buttons, const std::function<void()>& operation);

    QTemporaryDir folder;
    MainWindow window;
    Controller controller{window};
    Ui::MainWindow& ui = window.interface();
    UndoManager& undo = *controller.undoManager();
};
