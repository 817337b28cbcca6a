#include "controls/panel/TextDescription.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr double kSameNumber = 1e-4; // colors are kept in 16 bits

const CIValue& entry(const CIDictionary& description, const char* key)
{
    static const CIValue none;
    const auto found = description.find(key);
    return found == description.end() ? none : found->second;
}

QTextCharFormat firstFormat(const QTextDocument& text)
{
    QTextCursor cursor(const_cast<QTextDocument*>(&text)); // only read from
    cursor.movePosition(QTextCursor::Start);
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor); // its format is that of the character before
    return cursor.charFormat();
}

} // namespace

bool textDiffers(const QTextDocument& text, const CIDictionary& description)
{
    if (text.toPlainText().toStdString() != entry(description, "string").toString())
        return true;
    const QTextCharFormat format = firstFormat(text);
    const QFont font = format.font();
    if (font.family().toStdString() != entry(description, "font").toString())
        return true;
    const QColor color = format.foreground().color();
    const bool colored = format.hasProperty(QTextFormat::ForegroundBrush);
    const QPointF offset = format.property(TextShadowOffset).toPointF();
    const QColor shadow = format.property(TextShadowColor).value<QColor>();
    const bool shaded = format.hasProperty(TextShadowOffset);
    const std::pair<const char*, double> numbers[] = {
        {"pointSize", font.pointSizeF()},
        {"colorRed", colored ? double(color.redF()) : 0},
        {"colorGreen", colored ? double(color.greenF()) : 0},
        {"colorBlue", colored ? double(color.blueF()) : 0},
        {"colorAlpha", colored ? double(color.alphaF()) : 0},
        {"isShadow", shaded ? 1 : 0},
        {"shadowOffsetX", offset.x()},
        {"shadowOffsetY", offset.y()},
        {"shadowColorRed", shaded ? double(shadow.redF()) : 0},
        {"shadowColorGreen", shaded ? double(shadow.greenF()) : 0},
        {"shadowColorBlue", shaded ? double(shadow.blueF()) : 0},
        {"shadowColorAlpha", shaded ? double(shadow.alphaF()) : 0},
        {"shadowBlurRadius", format.property(TextShadowBlurRadius).toDouble()},
        {"strikeThroughStyle", font.strikeOut() ? 1 : 0},
        {"underlineStyle", double(format.underlineStyle())},
    };
    return std::any_of(std::begin(numbers), std::end(numbers), [&](const auto& number) {
        return std::abs(number.second - entry(description, number.first).toDouble()) > kSameNumber;
    });
}
