#include "controls/panel/CaptionLabel.h"

#include "controls/panel/ParameterText.h"

#include <QMouseEvent>

namespace {

constexpr int kLeastStretch = 80; // percent: narrower letters can't be read so small

} // namespace

CaptionLabel::CaptionLabel(const QString& text, QWidget* parent)
    : QLabel(parent)
    , m_fullText(text)
{
    setTextFormat(Qt::PlainText);
    setFont(rowFont(font()));
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void CaptionLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    QFont fitting = font();
    for (int stretch = 100; stretch >= kLeastStretch; stretch -= 5) {
        fitting.setStretch(stretch);
        if (QFontMetricsF(fitting).horizontalAdvance(m_fullText) <= width())
            break;
    }
    setFont(fitting);
    setText(ellipsizedText(m_fullText, font(), float(width())));
}

void CaptionLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
}
