// A field for text.
#pragma once

#include "widgets/rows/ValueRow.h"

#include <QPlainTextEdit>

/// Some lines of text. Tab goes on to the next control. `committed` comes when typing ends: the field loses the
/// keyboard, or with Return in a field of one line. Escape gives up what was typed.
class TextField : public QPlainTextEdit {
    Q_OBJECT
public:
    TextField(QWidget* parent, int lines);

    /// Nobody is told.
    void setShownText(const QString& text);
    bool isTyping() const { return m_isTyping; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {40, sizeHint().height()}; }

signals:
    void typed();
    void committed();
    void givenUp();

protected:
    bool event(QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void insertFromMimeData(const QMimeData*) override;

private:
    void commit();

    const int m_lines;
    bool m_isTyping = false, m_isShowing = false;
};

/// A string. It follows every key; all keys until the field is left are one step of undo, and Escape takes them back.
class TextRow : public ValueRow {
    Q_OBJECT
public:
    TextRow(QWidget* panel, int lines, ValueBinding value);

    void show() override;

    TextField* const field;

private:
    void typed();
    void giveUp();

    CIValue m_before; // typing began
};
