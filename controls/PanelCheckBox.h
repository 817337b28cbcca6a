// The check box of the panel.
#pragma once

#include <QCheckBox>

class PanelCheckBox : public QCheckBox {
    Q_OBJECT
public:
    explicit PanelCheckBox(const QString& title, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};
