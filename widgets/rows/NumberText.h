// How numbers read in panels, and what a typed one means: pure parts.
#pragma once

#include <cstdint>
#include <optional>

#include <QString>

/// How a number is shown and typed.
namespace UnitClass {
inline constexpr std::int32_t kScalar = 0; // as stored
inline constexpr std::int32_t kAngle = 1; // stored in radians, shown in degrees
inline constexpr std::int32_t kTime = 2; // stored from 0 to 1, shown in percent
inline constexpr std::int32_t kDistance = 3; // as stored
} // namespace UnitClass

double displayedNumber(double stored, std::int32_t unitClass);
double storedNumber(double displayed, std::int32_t unitClass);
/// "°" and the like, for tips and assistive technology; empty for plain numbers.
QString unitSign(std::int32_t unitClass);

struct ReadoutFormat {
    std::int32_t beforeDecimal = 4; // characters at least, filled up with blanks
    std::int32_t afterDecimal = 2; // digits
};
inline constexpr ReadoutFormat kComponentFormat{1, 3}; // of vectors and offsets

ReadoutFormat readoutFormatOf(std::int32_t unitClass);
/// The number as it stands, in no unit; at most 31 characters.
QString formattedNumber(double displayed, ReadoutFormat format);
/// A number of a vector.
inline QString componentText(double stored) { return formattedNumber(stored, kComponentFormat); }
/// With three digits after the point at most, and without a first or last 0 that says nothing: ".25", "-1".
QString shortText(double number);
/// A stored number as its readout shows it.
QString shownText(double stored, std::int32_t unitClass, ReadoutFormat format);

/// A readout takes nothing beyond.
inline constexpr double kLargestTypedNumber = 1e6;
/// The number of a typed text, in the digits of any language and with a decimal point or comma; nothing for other text,
/// and for numbers that are out of all reason.
std::optional<double> typedNumber(const QString& text);

/// A number's place on a slider, and its text.
struct NumberLook {
    double min = 0, max = 0; // of the slider, as stored; no range disables it
    std::int32_t unitClass = UnitClass::kScalar;
    std::optional<double> mark = {}; // on the track, usually the standard value
    bool whole = false; // the slider's steps
    bool continuous = true; // acts while it is dragged, not only when it is let go
    bool isFactor = false; // the slider stands at its power of ten
    /// Of the readout, shown in the user's language. Numbers are rounded to them, and typed ones kept within the range.
    std::optional<int> decimals = {};
    /// When a number lies beyond the slider's range, the range becomes so many times as long, and longer if that is not
    /// enough, but not beyond `least` and `most`. 0 leaves it as it is.
    double growth = 0;
    std::optional<double> least = {}, most = {};

    double position(double stored) const; // of the slider
    double numberAt(double position) const;
    QString text(double stored) const;
    double typed(double shown) const;
    double rounded(double stored) const;
};
