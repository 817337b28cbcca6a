#include "widgets/Checkerboard.h"

#include <QImage>
#include <QPainter>

namespace {

constexpr int kSquare = 8; // points

const QBrush& checkers()
{
    static const QBrush brush = [] {
        QImage tile(2 * kSquare, 2 * kSquare, QImage::Format_RGB32);
        tile.fill(QColor(255, 255, 255)); // the same in both looks, as paper is
        for (int y = 0; y < tile.height(); ++y)
            for (int x = 0; x < tile.width(); ++x)
                if ((x < kSquare) != (y < kSquare))
                    tile.setPixelColor(x, y, QColor(204, 204, 204));
        return QBrush(tile);
    }();
    return brush;
}

} // namespace

void fillCheckerboard(QPainter& painter, const QRectF& rect)
{
    if (rect.isValid())
        painter.fillRect(rect, checkers());
}
