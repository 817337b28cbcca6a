#include "controls/panel/CaptionLabel.h"

#include "controls/panel/ParameterText.h"

#include <QMouseEvent>

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
    setText(ellipsizedText(m_fullText, font(), float(width())));
}

void CaptionLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
}
