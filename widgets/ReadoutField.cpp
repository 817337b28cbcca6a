#include "widgets/ReadoutField.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTimer>

namespace {

constexpr int kSmallestText = 9; // pixels

double digitWidth(const QFontMetricsF& metrics)
{
    double widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

double advance(const QFontMetricsF& metrics, QChar c) // signs are as wide as digits, too
{
    return c == QLatin1Char('.') || c == QLatin1Char(',') ? metrics.horizontalAdvance(c) : digitWidth(metrics);
}

double textWidth(const QFontMetricsF& metrics, const QString& text)
{
    double width = 0;
    for (QChar c : text)
        width += advance(metrics, c);
    return width;
}

/// Each character in the middle of its cell.
void drawNumber(QPainter& painter, const QRectF& place, const QString& text)
{
    QFont font = painter.font();
    while (font.pixelSize() > kSmallestText && textWidth(QFontMetricsF(font), text) > place.width())
        font.setPixelSize(font.pixelSize() - 1);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const double baseline = std::round(place.center().y() + metrics.capHeight() / 2);
    double x = place.left();
    for (QChar c : text) {
        const double cell = advance(metrics, c);
        painter.drawText(QPointF(x + (cell - metrics.horizontalAdvance(c)) / 2, baseline), QString(c));
        x += cell;
    }
}

} // namespace

ReadoutField::ReadoutField(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, [this] { m_typing = true; });
}

void ReadoutField::setShownText(const QString& text)
{
    m_shownText = text;
    restore();
}

void ReadoutField::restore()
{
    m_typing = false;
    setText(m_shownText);
    setCursorPosition(0);
}

void ReadoutField::commit()
{
    if (m_typing)
        emit committed();
}

bool ReadoutField::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        // Undo is the window's unless a number is half typed; so is Escape.
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->setAccepted(m_typing);
            return true;
        }
        if (key->key() == Qt::Key_Escape && m_typing) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void ReadoutField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_typing) {
        restore();
        selectAll();
        emit givenUp();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        commit();
        selectAll();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void ReadoutField::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QLineEdit::mouseDoubleClickEvent(event);
    m_isDoubleClick = true;
    selectAll();
}

void ReadoutField::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_isDoubleClick) // a trembling hand leaves all of it selected
        QLineEdit::mouseMoveEvent(event);
}

void ReadoutField::mouseReleaseEvent(QMouseEvent* event)
{
    if (!std::exchange(m_isDoubleClick, false))
        QLineEdit::mouseReleaseEvent(event);
}

void ReadoutField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QLineEdit::selectAll); // later, since the press moves the cursor first
}

void ReadoutField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        deselect();
        setCursorPosition(0);
        commit();
    }
}

void ReadoutField::paintEvent(QPaintEvent* event)
{
    if (hasFocus()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &panel, this).adjusted(2, 0, -2, 0);
    painter.setFont(font());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    drawNumber(painter, inside, text().trimmed());
}
