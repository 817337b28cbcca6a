#include "controls/panel/ParameterText.h"

#include "controls/panel/FilterNames.h"

#include <QFontMetrics>

namespace {

constexpr qsizetype kKeyPrefix = 5; // "input"
constexpr int kRowTextSize = 12; // pixels: nine points where an inch has 96 pixels
constexpr float kCaptionMargin = 5;

} // namespace

std::int32_t unitClassOf(InputKind kind)
{
    if (kind == InputKind::Angle)
        return UnitClass::kAngle;
    if (kind == InputKind::Time)
        return UnitClass::kTime;
    return kind == InputKind::Distance ? UnitClass::kDistance : UnitClass::kScalar;
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
