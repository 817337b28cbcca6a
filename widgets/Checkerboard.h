// What is seen through transparent pixels.
#pragma once

class QPainter;
class QRectF;

/// Fills the rectangle with light and dark squares that stay where they are on the widget, whatever moves over them.
void fillCheckerboard(QPainter& painter, const QRectF& rect);
