// The main window.
#pragma once

#include <QMainWindow>
#include <QSet>

#include <memory>

class Commands;
class Controller;
class WindowGestures;

namespace Ui {
class MainWindow;
}

/// The interface of resources/MainWindow.ui with its icons, keys and looks. What happens is up to the controller.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    Ui::MainWindow& interface() { return *ui; }
    Commands& commands() { return *m_commands; }
    /// Is told of what happens to the window, and carries out its commands; null for nobody.
    void setController(Controller* controller);
    void findFilter(); // moves the keyboard to the search
    void toggleFullScreen();
    /// Names the file, which may be empty, and says whether its picture is changed.
    void showTitle(const QString& path, bool isChanged);
    /// Where the window stood when the program ended, within the screen.
    void restoreFrame();
    void saveFrame() const;
    /// Shows a panel, or closes it when it is there already.
    static void togglePanel(QWidget& panel);
    /// The list is to have the width that filters in columns take.
    void makeRoomForColumns();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setIcons();
    void setButtons();
    void setLayout();
    void dress();
    void focusNextPane();
    bool searchFieldEvent(QEvent* event);
    bool foundListEvent(QEvent* event);

    std::unique_ptr<Ui::MainWindow> ui;
    std::unique_ptr<Commands> m_commands;
    std::unique_ptr<WindowGestures> m_gestures; // gone before what it watches
    Controller* m_controller = nullptr;
    QSet<int> m_pressedKeys; // whose releases are for this window: those after a sheet's Escape are not
    bool m_wasShown = false;
    bool m_listIsSearched = false; // entered from the search field, and no filter is chosen yet
};
