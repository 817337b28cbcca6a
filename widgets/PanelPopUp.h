// The pop-up menu of panels.
#pragma once

#include <QComboBox>

/// A combo box without a text field, in the program's look. The wheel turns it only while it has the focus, so that a
/// panel can be scrolled over it.
class PanelPopUp : public QComboBox {
    Q_OBJECT
public:
    explicit PanelPopUp(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent*) override;
    void wheelEvent(QWheelEvent*) override;
};
