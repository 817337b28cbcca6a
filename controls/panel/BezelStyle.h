// The shape of push buttons.
#pragma once

class QAbstractButton;
class QWidget;

namespace BezelStyle {
inline constexpr int None = 0; // no push button, or without an edge
inline constexpr int Rounded = 1;
inline constexpr int TexturedSquare = 8;
} // namespace BezelStyle

/// Push buttons are rounded until told otherwise.
int bezelStyle(const QAbstractButton& button);
void setBezelStyle(QAbstractButton& button, int style);
/// Makes rounded buttons square, in the view and all that is in it.
void squareButtons(QWidget& view);
