#include "tools/lumivex-render/Arguments.h"

#include <charconv>
#include <cmath>

namespace {

constexpr int kMaxRepeat = 100'000;

std::pair<std::string, std::string> splitAssignment(const std::string& option, const std::string& text)
{
    const auto equals = text.find('=');
    if (equals == std::string::npos || equals == 0)
        throw UsageError(option + " needs key=value, not '" + text + "'");
    return {text.substr(0, equals), text.substr(equals + 1)};
}

CIRect parseRect(const std::string& text)
{
    const auto numbers = parseNumbers(text);
    if (!numbers || numbers->size() != 4 || !((*numbers)[2] > 0 && (*numbers)[3] > 0))
        throw UsageError("--rect needs x,y,width,height with a width and a height above 0, not '" + text + "'");
    return {(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]};
}

double parseScale(const std::string& text)
{
    const auto numbers = parseNumbers(text);
    if (!numbers || numbers->size() != 1 || !(numbers->front() > 0))
        throw UsageError("--scale needs a number above 0, not '" + text + "'");
    return numbers->front();
}

int parseRepeat(const std::string& text)
{
    int count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error != std::errc() || end != text.data() + text.size() || count < 1 || count > kMaxRepeat)
        throw UsageError(
            "--repeat needs a whole number from 1 to " + std::to_string(kMaxRepeat) + ", not '" + text + "'");
    return count;
}

/// Gives out the words one after the other.
class Words {
public:
    explicit Words(const std::vector<std::string>& words)
        : m_words(words)
    {
    }
    bool isAtEnd() const { return m_next == m_words.size(); }
    const std::string& take() { return m_words[m_next++]; }
    const std::string& takeValueOf(const std::string& option)
    {
        if (isAtEnd())
            throw UsageError(option + " needs a value");
        return take();
    }

private:
    const std::vector<std::string>& m_words;
    std::size_t m_next = 0;
};

void takeRenderOption(Arguments& arguments, const std::string& word, Words& words)
{
    if (word == "--set")
        arguments.values.push_back(splitAssignment(word, words.takeValueOf(word)));
    else if (word == "--image")
        arguments.images.push_back(splitAssignment(word, words.takeValueOf(word)));
    else if (word == "--rect")
        arguments.rect = parseRect(words.takeValueOf(word));
    else if (word == "--scale")
        arguments.scale = parseScale(words.takeValueOf(word));
    else if (word == "--repeat")
        arguments.repeat = parseRepeat(words.takeValueOf(word));
    else if (word == "-o")
        arguments.output = words.takeValueOf(word);
    else if (word.starts_with('-'))
        throw UsageError("unknown option '" + word + "'");
    else if (!arguments.filter.empty())
        throw UsageError("one filter at a time: '" + arguments.filter + "' or '" + word + "'");
    else
        arguments.filter = word;
}

} // namespace

Arguments parseArguments(const std::vector<std::string>& all)
{
    Arguments arguments;
    Words words(all);
    bool hasTask = false;
    while (!words.isAtEnd()) {
        const std::string& word = words.take();
        if (word == "--help" || word == "-h")
            return Arguments();
        if (word == "--list" || word == "--describe" || word == "--version") {
            arguments.task = word == "--list" ? Task::List : word == "--describe" ? Task::Describe : Task::Version;
            hasTask = true;
            if (word == "--describe")
                arguments.filter = words.takeValueOf(word);
        } else {
            takeRenderOption(arguments, word, words);
        }
    }
    if (hasTask)
        return arguments;
    arguments.task = Task::Render;
    if (arguments.filter.empty())
        throw UsageError("no filter named; --help shows how");
    if (arguments.output.empty() && arguments.repeat == 0)
        throw UsageError("no output file named; use -o out.png");
    return arguments;
}

std::optional<std::vector<double>> parseNumbers(std::string_view text)
{
    std::vector<double> numbers;
    while (true) {
        while (text.starts_with(' '))
            text.remove_prefix(1);
        if (text.starts_with('+'))
            text.remove_prefix(1);
        double number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || !std::isfinite(number))
            return std::nullopt;
        numbers.push_back(number);
        text.remove_prefix(std::size_t(end - text.data()));
        if (text.empty())
            return numbers;
        if (!text.starts_with(','))
            return std::nullopt;
        text.remove_prefix(1);
    }
}

std::string usageText()
{
    return R"(Renders one filter of the image engine into a PNG file.

  lumivex-render --list                  name, display name and categories of every filter
  lumivex-render --describe NAME         the filter's attributes as JSON
  lumivex-render NAME [--set key=value]... [--image key=file]... [--rect x,y,w,h] [--scale s] -o out.png
  lumivex-render NAME ... --repeat N     also prints 'median_ms<TAB>min_ms<TAB>max_ms' of N renders

Values: 10 or 0.5 for numbers; 150,150 for vectors; 1,0,0,0.5 or #rrggbbaa for colors (sRGB);
six numbers a,b,c,d,tx,ty for transforms; text as it stands. Inputs that are not set have their defaults.
Without --rect the filter's whole extent is rendered; where that is infinite, the extent of inputImage,
or else 512 x 512 pixels at the origin. y points up. --scale is output pixels per picture pixel.
The output has 16 bits where an input picture has more than 8, else 8.
A mistake is told in one line on standard error, with exit status 2 and no output file.
)";
}
