// Keys and clicks that mean the picture, though they come to another part of the window.
#pragma once

#include <QObject>

class MainWindow;
class ZoomedCanvas;

namespace Ui {
class MainWindow;
}

/// The space bar held moves the picture about wherever the keyboard is, except where it types or presses something.
class WindowGestures : public QObject {
    Q_OBJECT

public:
    WindowGestures(MainWindow& window, Ui::MainWindow& interface);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ZoomedCanvas* shownCanvas() const;
    void holdSpace(bool held);

    MainWindow& m_window;
    Ui::MainWindow& ui;
};
