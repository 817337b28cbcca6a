// The colors of the program, in a light and a dark look.
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

/// Neutral greys and one violet accent. Text on its background has a contrast of at least 4.5 to 1, marks of 3 to 1.
struct Look {
    QColor window; // menu bar, tool bar, status bar
    QColor panel; // lists and parameter rows
    QColor surround; // around the picture: neutral, so that it doesn't color the eye
    QColor field; // text fields
    QColor button; // push buttons at rest
    QColor hover; // under the mouse
    QColor pressed; // held down
    QColor border; // edges of buttons and menus, which their text tells of too; tracks
    QColor edge; // of what is known by its edge alone: text fields, check boxes, color wells, knobs
    QColor separator; // hair lines between areas
    QColor text;
    QColor secondaryText; // captions, units, group names
    QColor disabledText;
    QColor accent; // filled: selected rows, switched-on buttons
    QColor accentText; // text on `accent`
    QColor accentMark; // drawn: focus rings, slider grooves, control-point markers

    static const Look& light();
    static const Look& dark();
};

QPalette paletteOf(const Look&);
/// What the palette can't say: spacing (a grid of 4 points), corners, hover and focus.
QString styleSheetOf(const Look&);
