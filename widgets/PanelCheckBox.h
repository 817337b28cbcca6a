// The check box of panels.
#pragma once

#include <QCheckBox>

class PanelCheckBox : public QCheckBox {
    Q_OBJECT
public:
    explicit PanelCheckBox(const QString& title, QWidget* parent = nullptr);
    explicit PanelCheckBox(QWidget* parent)
        : PanelCheckBox(QString(), parent)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};
