#include "tools/lumivex-render/InputValues.h"

#include "tools/lumivex-render/Arguments.h"

#include <charconv>

namespace {

[[noreturn]] void refuse(const CIInputAttributes& input, const std::string& text, const std::string& wanted)
{
    throw UsageError(input.key + " needs " + wanted + ", not '" + text + "'");
}

std::vector<double> numbersOf(
    const CIInputAttributes& input, const std::string& text, std::size_t count, const std::string& wanted)
{
    const auto numbers = parseNumbers(text);
    if (!numbers || (count != 0 && numbers->size() != count))
        refuse(input, text, wanted);
    return *numbers;
}

CIValue vectorValue(const CIInputAttributes& input, const std::string& text)
{
    const std::size_t count = input.defaultValue.toVector().count(); // 0 when the length is free
    const std::string wanted = (count ? std::to_string(count) + " " : "") + "numbers with commas between them";
    return CIVector(numbersOf(input, text, count, wanted));
}

CIValue colorValue(const CIInputAttributes& input, const std::string& text)
{
    const std::string wanted = "three or four numbers or #rrggbbaa";
    if (!text.starts_with('#')) {
        const auto numbers = numbersOf(input, text, 0, wanted);
        if (numbers.size() != 3 && numbers.size() != 4)
            refuse(input, text, wanted);
        return CIColor(numbers[0], numbers[1], numbers[2], numbers.size() == 4 ? numbers[3] : 1);
    }
    unsigned bits = 0;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), bits, 16);
    if (error != std::errc() || end != text.data() + text.size() || (text.size() != 7 && text.size() != 9))
        refuse(input, text, wanted);
    if (text.size() == 7)
        bits = bits << 8 | 0xff;
    const auto component = [bits](int shift) { return double(bits >> shift & 0xff) / 255; };
    return CIColor(component(24), component(16), component(8), component(0));
}

CIValue transformValue(const CIInputAttributes& input, const std::string& text)
{
    const auto n = numbersOf(input, text, 6, "six numbers a,b,c,d,tx,ty");
    return CIAffineTransform{n[0], n[1], n[2], n[3], n[4], n[5]};
}

CIValue dataValue(const std::string& text)
{
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return CIData(first, first + text.size());
}

} // namespace

CIValue inputValue(const CIInputAttributes& input, const std::string& text)
{
    if (input.isNumber())
        return numbersOf(input, text, 1, "a number").front();
    if (input.isVector())
        return vectorValue(input, text);
    if (input.isColor())
        return colorValue(input, text);
    if (input.isImage())
        throw UsageError(input.key + " is a picture; use --image " + input.key + "=file");
    switch (input.kind) {
    case InputKind::Transform:
        return transformValue(input, text);
    case InputKind::Data:
        return dataValue(text);
    case InputKind::Array:
        throw UsageError(input.key + " can't be set from the command line");
    default: // text, or a color space by name
        return text;
    }
}
