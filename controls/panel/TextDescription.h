// A text with its looks, as a dictionary.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <QTextFormat>

class QTextDocument;

/// A text document has no shadows of its own: these properties of a character format describe one.
enum TextShadowProperty {
    TextShadowOffset = QTextFormat::UserProperty, // QPointF
    TextShadowColor, // QColor
    TextShadowBlurRadius, // double
};

/// True if the text, or the format of its first character, is other than the description says. Its keys: "string",
/// "font", "pointSize", "colorRed", "colorGreen", "colorBlue", "colorAlpha", "isShadow", "shadowOffsetX",
/// "shadowOffsetY", "shadowColorRed", "shadowColorGreen", "shadowColorBlue", "shadowColorAlpha", "shadowBlurRadius",
/// "strikeThroughStyle", "underlineStyle". What is missing counts as 0.
bool textDiffers(const QTextDocument& text, const CIDictionary& description);
