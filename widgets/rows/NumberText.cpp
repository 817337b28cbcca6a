#include "widgets/rows/NumberText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr double kDegrees = 180 / std::numbers::pi; // in a radian
constexpr double kPercent = 100;

} // namespace

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
    return unitClass == UnitClass::kDistance ? QCoreApplication::translate("NumberText", " px") : QString();
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

QString shortText(double number)
{
    QString text = formattedNumber(number, kComponentFormat);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    if (text == QLatin1String("-0"))
        return QStringLiteral("0");
    const qsizetype sign = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    if (QStringView(text).mid(sign).startsWith(QLatin1String("0.")))
        text.remove(sign, 1);
    return text;
}

QString shownText(double stored, std::int32_t unitClass, ReadoutFormat format)
{
    return formattedNumber(displayedNumber(stored, unitClass), format);
}

std::optional<double> typedNumber(const QString& text)
{
    QString plain = text.trimmed();
    for (QChar& c : plain)
        if (c.isDigit())
            c = QLatin1Char(char('0' + c.digitValue()));
        else if (c == QLatin1Char(',') || c == QChar(0x066B)) // the Arabic decimal mark
            c = QLatin1Char('.');
        else if (c == QChar(0x2212))
            c = QLatin1Char('-');
    bool isNumber = false;
    const double number = QLocale::c().toDouble(plain, &isNumber);
    if (!isNumber || !(std::abs(number) <= kLargestTypedNumber))
        return {};
    return number;
}

double NumberLook::position(double stored) const
{
    if (!isFactor)
        return stored;
    return stored > 0 ? std::clamp(std::log10(stored), min, max) : min;
}

double NumberLook::numberAt(double position) const
{
    return isFactor ? double(float(std::pow(10.0, position))) : position;
}

QString NumberLook::text(double stored) const
{
    if (!decimals)
        return shownText(stored, unitClass, readoutFormatOf(unitClass));
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator); // which a comma typed anew is not
    return locale.toString(displayedNumber(stored, unitClass), 'f', *decimals);
}

double NumberLook::typed(double shown) const
{
    const double stored = storedNumber(shown, unitClass);
    return decimals ? rounded(std::clamp(stored, numberAt(min), numberAt(max))) : double(float(stored));
}

double NumberLook::rounded(double stored) const
{
    if (!decimals)
        return stored;
    const double steps = std::pow(10, *decimals); // per unit
    return std::round(stored * steps) / steps;
}
