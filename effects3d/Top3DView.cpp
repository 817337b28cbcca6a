#include "effects3d/Top3DView.h"

#include <QPainter>
#include <QPaintEvent>

Top3DView::Top3DView(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Top3DView::paintEvent(QPaintEvent* event) { QPainter(this).fillRect(event->rect(), Qt::white); }
