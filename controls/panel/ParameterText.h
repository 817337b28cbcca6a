// Captions and units of the panel's rows: pure parts.
#pragma once

#include "platform/coreimage/CIFilter.h"
#include "widgets/rows/NumberText.h"

#include <QFont>
#include <QString>

/// Plain for kinds without a unit.
std::int32_t unitClassOf(InputKind);

/// The words of a key: a blank before every capital and every digit but the first character, one by one
/// ("ShadingImage" becomes "Shading Image", "Point12" becomes "Point 1 2"). Nothing is lower-cased.
QString wordsOfKey(const QString& key);

/// The display name, or else the words of the key without its first five characters, "input"; in the user's language.
QString captionText(const CIInputAttributes& input);

/// The font of captions and readouts.
QFont rowFont(const QFont& family);

/// Cuts characters off the end until the text with three dots leaves 5 points of `width`; "Replacement Color" is said
/// shorter first. Measured in `font` at the size of ordinary small text.
QString ellipsizedText(const QString& text, const QFont& font, float width);
