// What the program is, whose work it stands on, and what one may do with it.
#pragma once

#include <QDialog>

class QLabel;

class AboutWindow : public QDialog {
    Q_OBJECT

public:
    explicit AboutWindow(QWidget* parent);

private:
    void writeText();

    QLabel* m_text;
};
