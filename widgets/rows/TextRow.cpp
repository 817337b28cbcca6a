#include "widgets/rows/TextRow.h"

#include <cmath>
#include <utility>

#include <QKeyEvent>
#include <QMimeData>

TextField::TextField(QWidget* parent, int lines)
    : QPlainTextEdit(parent)
    , m_lines(lines)
{
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (lines == 1) {
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setLineWrapMode(NoWrap);
    }
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (m_isShowing)
            return;
        m_isTyping = true;
        emit typed();
    });
}

void TextField::setShownText(const QString& text)
{
    m_isTyping = false;
    if (text == toPlainText())
        return;
    m_isShowing = true;
    setPlainText(text);
    m_isShowing = false;
}

QSize TextField::sizeHint() const
{
    constexpr double kEdge = 2; // points, of the style sheet: line and padding
    const double text = m_lines * QFontMetricsF(font()).lineSpacing() + 2 * document()->documentMargin();
    return {120, int(std::ceil(text + 2 * kEdge))};
}

/// Undo is the window's unless something is half typed; so is Escape.
bool TextField::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo) || key->key() == Qt::Key_Escape) {
            event->setAccepted(m_isTyping);
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && m_isTyping)
        emit givenUp();
    else if (isReturn && m_lines == 1)
        commit();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void TextField::insertFromMimeData(const QMimeData* source)
{
    if (m_lines == 1)
        insertPlainText(source->text().simplified());
    else
        insertPlainText(source->text());
}

void TextField::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        commit();
}

void TextField::commit()
{
    if (std::exchange(m_isTyping, false))
        emit committed();
}

TextRow::TextRow(QWidget* panel, int lines, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , field(new TextField(panel, lines))
{
    connect(field, &TextField::typed, this, &TextRow::typed);
    connect(field, &TextField::committed, this, &TextRow::endChange);
    connect(field, &TextField::givenUp, this, &TextRow::giveUp);
    show();
}

void TextRow::show() { field->setShownText(QString::fromStdString(m_value.get().toString())); }

void TextRow::typed()
{
    if (!isChanging())
        m_before = m_value.get();
    beginChange();
    m_value.set(field->toPlainText().toStdString());
}

void TextRow::giveUp()
{
    if (isChanging()) {
        m_value.set(m_before);
        endChange();
    }
    show();
}
