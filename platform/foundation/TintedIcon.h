// The program's own icons.
#pragma once

#include <QIcon>
#include <QString>

/// The icon resource `name`.svg, drawn sharp at any size in the text color of the current look; paler when disabled,
/// in the accent's text color when switched on or selected. Follows the look without being set again.
/// A null icon when there is no such resource.
QIcon tintedIcon(const QString& name);
