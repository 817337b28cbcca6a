// The number beside a slider.
#pragma once

#include <QLineEdit>

/// Shows a number with digits of one width and takes a typed one. At rest a long number is drawn smaller rather than
/// cut; what is being typed scrolls.
class ReadoutField : public QLineEdit {
    Q_OBJECT
public:
    explicit ReadoutField(QWidget* parent = nullptr);

    /// The number as it is; typing that comes to nothing returns to it.
    void setShownText(const QString& text);
    /// Back to the shown number.
    void restore();

signals:
    /// The user has typed and pressed Return or left the field. The receiver calls `setShownText` or `restore`.
    void committed();
    /// Escape was pressed; the shown number is back.
    void givenUp();

protected:
    bool event(QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override; // the whole number, signs and all
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void paintEvent(QPaintEvent*) override;

private:
    void commit();

    QString m_shownText;
    bool m_typing = false;
    bool m_isDoubleClick = false; // until the button is let go
};
