#include "widgets/PanelCheckBox.h"

#include "platform/foundation/Appearance.h"

#include <QPainter>

namespace {

constexpr double kBox = 14;
constexpr double kCorner = 4;
constexpr double kGap = 6;

} // namespace

PanelCheckBox::PanelCheckBox(const QString& title, QWidget* parent)
    : QCheckBox(title, parent)
{
    setAttribute(Qt::WA_Hover);
}

void PanelCheckBox::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box(0.5, (height() - kBox) / 2 + 0.5, kBox - 1, kBox - 1);
    const bool marked = underMouse() || hasFocus() || isDown();
    painter.setBrush(isChecked() ? look.accentMark : isDown() ? look.pressed : look.field);
    painter.setPen(QPen(isChecked() || marked ? look.accentMark : look.edge, 1));
    painter.drawRoundedRect(box, kCorner, kCorner);
    if (hasFocus() && isChecked()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(look.text, 1));
        painter.drawRoundedRect(box, kCorner, kCorner);
    }
    if (isChecked()) {
        painter.setPen(QPen(Appearance::shared().isDark() ? look.accentText : QColor(Qt::white), 1.8, Qt::SolidLine,
            Qt::RoundCap, Qt::RoundJoin));
        const QPointF tick[] = {
            {box.x() + 3, box.y() + 7}, {box.x() + 5.5, box.y() + 9.5}, {box.x() + 10, box.y() + 4}};
        painter.drawPolyline(tick, 3);
    }
    painter.setPen(isEnabled() ? look.text : look.disabledText);
    const QRectF place = QRectF(rect()).adjusted(kBox + kGap, 0, 0, 0);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic, text());
}
