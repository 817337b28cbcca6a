// The name beside a control of the panel.
#pragma once

#include <QLabel>

/// Shows as much of its text as fits, in narrower letters if need be. Never takes the keyboard.
class CaptionLabel : public QLabel {
    Q_OBJECT
public:
    explicit CaptionLabel(const QString& text, QWidget* parent = nullptr);
    const QString& fullText() const { return m_fullText; }

signals:
    void doubleClicked();

protected:
    void resizeEvent(QResizeEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;

private:
    QString m_fullText;
};
