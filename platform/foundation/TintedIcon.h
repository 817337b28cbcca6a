// The program's own icons.
#pragma once

#include <QIcon>
#include <QString>

enum class IconTint {
    Text, // as the text beside it
    Accent, // stands out
    OnAccent, // lies on the accent color
};

/// The icon ":/icons/`name`.svg", or the resource file of that name, drawn sharp at any size in one color of the
/// current look: paler when disabled, in the accent's text color when switched on or selected. Follows the look
/// without being set again. A null icon when there is no such file.
QIcon tintedIcon(const QString& name, IconTint tint = IconTint::Text);
