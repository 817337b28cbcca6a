// The panel that asks for a name to save under.
#pragma once

#include <QFileDialog>

/// The toolkit's own panel in the program's looks: the desktop's has no place for `accessory`. It never asks before
/// replacing a file. The accessory view is borrowed: it goes back, hidden, to where it was.
class SavePanel : public QFileDialog {
    Q_OBJECT

public:
    SavePanel(QWidget* window, QWidget* accessory);
    ~SavePanel() override;

private:
    void dress();
    void giveBackAccessory();

    QPointer<QWidget> m_accessory, m_owner;
};
