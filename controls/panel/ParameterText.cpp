#include "controls/panel/ParameterText.h"

#include "controls/panel/FilterNames.h"

#include <cmath>
#include <cstdio>
#include <numbers>

#include <QCoreApplication>
#include <QFontMetrics>
#include <QLocale>

namespace {

constexpr double kDegrees = 180 / std::numbers::pi; // in a radian
constexpr double kPercent = 100;
constexpr qsizetype kKeyPrefix = 5; // "input"
constexpr int kRowTextSize = 12; // pixels: nine points where an inch has 96 pixels
constexpr float kCaptionMargin = 5;

} // namespace

std::int32_t unitClassOf(const std::string& attributeType)
{
    if (attributeType == kCIAttributeTypeAngle)
        return UnitClass::kAngle;
    if (attributeType == kCIAttributeTypeTime)
        return UnitClass::kTime;
    return attributeType == kCIAttributeTypeDistance ? UnitClass::kDistance : UnitClass::kScalar;
}

double displayedNumber(double stored, std::int32_t unitClass)
{
    if (unitClass == UnitClass::kAngle)
        return stored * kDegrees;
    return unitClass == UnitClass::kTime ? stored * kPercent : stored;
}

double storedNumber(double displayed, std::int32_t unitClass)
{
    if (unitClass == UnitClass::kAngle)
        return displayed / kDegrees;
    return unitClass == UnitClass::kTime ? displayed / kPercent : displayed;
}

QString unitSign(std::int32_t unitClass)
{
    if (unitClass == UnitClass::kAngle)
        return QStringLiteral("°");
    if (unitClass == UnitClass::kTime)
        return QStringLiteral(" %");
    return unitClass == UnitClass::kDistance ? QCoreApplication::translate("ParameterText", " px") : QString();
}

ReadoutFormat readoutFormatOf(std::int32_t unitClass)
{
    switch (unitClass) {
    case UnitClass::kAngle:
        return {3, 1};
    case UnitClass::kTime:
        return {1, 3};
    case UnitClass::kDistance:
        return {4, 1};
    default:
        return {4, 2};
    }
}

QString formattedNumber(double displayed, ReadoutFormat format)
{
    char text[32];
    std::snprintf(text, sizeof text, "%*.*f", int(format.beforeDecimal), int(format.afterDecimal), displayed);
    return QString::fromLatin1(text);
}

QString shownText(double stored, std::int32_t unitClass, ReadoutFormat format)
{
    return formattedNumber(displayedNumber(stored, unitClass), format);
}

std::optional<double> typedNumber(const QString& text)
{
    QString plain = text.trimmed();
    plain.replace(QLatin1Char(','), QLatin1Char('.')).replace(QChar(0x2212), QLatin1Char('-'));
    bool isNumber = false;
    const double number = QLocale::c().toDouble(plain, &isNumber);
    if (!isNumber || !(std::abs(number) <= kLargestTypedNumber))
        return {};
    return number;
}

QString wordsOfKey(const QString& key)
{
    QString words = key;
    for (qsizetype i = 1; i < words.size(); ++i) {
        const QChar c = words.at(i);
        const bool startsWord = c != c.toLower() || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
        if (startsWord)
            words.insert(i++, QLatin1Char(' '));
    }
    return words;
}

QString captionText(const CIInputAttributes& input)
{
    if (!input.displayName.empty())
        return shownInputName(input.displayName);
    return shownInputName(wordsOfKey(QString::fromStdString(input.key).mid(kKeyPrefix)).toStdString());
}

QFont rowFont(const QFont& family)
{
    QFont font = family;
    font.setPixelSize(kRowTextSize);
    return font;
}

QString ellipsizedText(const QString& text, const QFont& font, float width)
{
    static const QString dots = QStringLiteral("...");
    QString shown = text;
    shown.replace(QLatin1String("Replacement Color"), QLatin1String("Replace With"));
    const QFontMetrics metrics(rowFont(font));
    const int limit = int(width - kCaptionMargin);
    for (qsizetype cut = 1; metrics.horizontalAdvance(shown) > limit && shown.size() > dots.size(); cut = 4)
        shown = shown.chopped(cut) + dots;
    return shown;
}
