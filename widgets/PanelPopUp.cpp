#include "widgets/PanelPopUp.h"

#include "platform/foundation/Appearance.h"
#include "platform/foundation/TintedIcon.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kHeight = 24, kInset = 8, kChevron = 12; // points
constexpr double kCorner = 6;

} // namespace

PanelPopUp::PanelPopUp(QWidget* parent)
    : QComboBox(parent)
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
}

QSize PanelPopUp::sizeHint() const
{
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    return {widest + 3 * kInset + kChevron, std::max(kHeight, fontMetrics().height() + 6)};
}

void PanelPopUp::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(underMouse() && isEnabled() ? look.hover : look.button);
    painter.setPen(QPen(hasFocus() ? look.accentMark : look.border, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);

    QRect chevron(0, 0, kChevron, kChevron);
    chevron.moveCenter(rect().center());
    chevron.moveRight(width() - kInset);
    const QRect text = rect().adjusted(kInset, 0, -2 * kInset - kChevron, 0);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const auto placed = [&](const QRect& place) {
        return mirrored ? QRect(width() - place.right() - 1, place.y(), place.width(), place.height()) : place;
    };
    static const QIcon icon = tintedIcon(QStringLiteral("chevron-down"));
    icon.paint(&painter, placed(chevron), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.setPen(isEnabled() ? look.text : look.disabledText);
    painter.drawText(placed(text), Qt::AlignVCenter | (mirrored ? Qt::AlignRight : Qt::AlignLeft),
        fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()));
}

void PanelPopUp::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

/// Escape closes the open menu, and isn't the window's.
void PanelPopUp::showPopup()
{
    QComboBox::showPopup();
    view()->installEventFilter(this); // once, however often
}

bool PanelPopUp::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}
