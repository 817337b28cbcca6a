// The panel that asks for a name to save under.
#pragma once

#include <QFileDialog>

#include <functional>

class QLabel;

/// The toolkit's own panel in the program's looks: the desktop's has no place for `accessory`. It never asks before
/// replacing a file. The accessory view is borrowed: it goes back, hidden, to where it was.
class SavePanel : public QFileDialog {
    Q_OBJECT

public:
    SavePanel(QWidget* window, QWidget* accessory);
    ~SavePanel() override;

    /// Tells below the name, as it is typed, where a file goes for which the panel answers `chosen`.
    void setTarget(std::function<QString(const QString& chosen)> target);
    void showTarget();

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void dress();
    void addTargetLine();
    void giveBackAccessory();

    QPointer<QWidget> m_accessory, m_owner;
    std::function<QString(const QString&)> m_target;
    QLabel* m_targetLine = nullptr; // in the grid of the panel
};
