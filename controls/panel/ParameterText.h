// Captions, units and numbers of the panel's rows: pure parts.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <cstdint>
#include <optional>

#include <QFont>
#include <QString>

/// How a number is shown and typed.
namespace UnitClass {
inline constexpr std::int32_t kScalar = 0; // as stored
inline constexpr std::int32_t kAngle = 1; // stored in radians, shown in degrees
inline constexpr std::int32_t kTime = 2; // stored from 0 to 1, shown in percent
inline constexpr std::int32_t kDistance = 3; // as stored
} // namespace UnitClass

/// The class of an input by its kCIAttributeType; plain for types without a unit.
std::int32_t unitClassOf(const std::string& attributeType);
double displayedNumber(double stored, std::int32_t unitClass);
double storedNumber(double displayed, std::int32_t unitClass);
/// "°" and the like, for tips and assistive technology; empty for plain numbers.
QString unitSign(std::int32_t unitClass);

struct ReadoutFormat {
    std::int32_t beforeDecimal = 4; // characters at least, filled up with blanks
    std::int32_t afterDecimal = 2; // digits
};
inline constexpr ReadoutFormat kComponentFormat{1, 3}; // of vectors and offsets
inline constexpr ReadoutFormat kFactorFormat{4, 2}; // of text, and of a transform but for its angle

ReadoutFormat readoutFormatOf(std::int32_t unitClass);
/// The number as it stands, in no unit; at most 31 characters.
QString formattedNumber(double displayed, ReadoutFormat format);
/// A stored number as its readout shows it.
QString shownText(double stored, std::int32_t unitClass, ReadoutFormat format);

/// A readout takes nothing beyond.
inline constexpr double kLargestTypedNumber = 1e6;
/// The number of a typed text, with a decimal point or comma; nothing for other text, and for numbers that are out of
/// all reason.
std::optional<double> typedNumber(const QString& text);

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
