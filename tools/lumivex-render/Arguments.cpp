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

std::string parseFavourite(const Arguments& arguments, const std::string& name)
{
    if (!arguments.favourite.empty())
        throw UsageError("one favourite at a time: '" + arguments.favourite + "' or '" + name + "'");
    return name;
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

/// What both a single render and a batch know, and what only one of them does: that is looked at in the end.
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
    else if (word == "--favourite")
        arguments.favourite = parseFavourite(arguments, words.takeValueOf(word));
    else if (word == "--fit")
        arguments.isFitted = true;
    else if (word == "--quiet")
        arguments.isQuiet = true;
    else if (word == "-o")
        arguments.output = words.takeValueOf(word);
    else if (word == "--")
        while (!words.isAtEnd())
            arguments.files.push_back(words.take());
    else if (word.starts_with('-'))
        throw UsageError("unknown option '" + word + "'");
    else
        arguments.files.push_back(word);
}

std::optional<Task> taskNamed(const std::string& word)
{
    if (word == "--list")
        return Task::List;
    if (word == "--list-favourites")
        return Task::ListFavourites;
    if (word == "--describe")
        return Task::Describe;
    if (word == "--version")
        return Task::Version;
    return std::nullopt;
}

void checkBatch(const Arguments& arguments)
{
    if (!arguments.values.empty() || !arguments.images.empty() || arguments.rect || arguments.scale != 1
        || arguments.repeat != 0 || arguments.isFitted)
        throw UsageError("a favourite has its own values: only -o and --quiet go with --favourite");
    if (arguments.files.empty())
        throw UsageError("no files named; --help shows how");
    if (arguments.output.empty())
        throw UsageError("no output folder named; use -o folder");
}

/// The only word that is no option is the filter.
void checkRender(Arguments& arguments)
{
    if (arguments.files.empty())
        throw UsageError("no filter named; --help shows how");
    if (arguments.files.size() > 1)
        throw UsageError("one filter at a time: '" + arguments.files[0] + "' or '" + arguments.files[1] + "'");
    if (arguments.isQuiet)
        throw UsageError("--quiet goes with --favourite");
    if (arguments.output.empty() && arguments.repeat == 0)
        throw UsageError("no output file named; use -o out.png");
    arguments.filter = std::move(arguments.files.front());
    arguments.files.clear();
}

} // namespace

Arguments parseArguments(const std::vector<std::string>& all)
{
    Arguments arguments;
    Words words(all);
    bool hasTask = false, isBatch = false;
    while (!words.isAtEnd()) {
        const std::string& word = words.take();
        if (word == "--help" || word == "-h")
            return Arguments();
        if (const std::optional<Task> task = taskNamed(word)) {
            arguments.task = *task;
            hasTask = true;
            if (task == Task::Describe)
                arguments.filter = words.takeValueOf(word);
        } else {
            isBatch = isBatch || word == "--favourite";
            takeRenderOption(arguments, word, words);
        }
    }
    if (hasTask)
        return arguments;
    arguments.task = isBatch ? Task::Batch : Task::Render;
    if (isBatch)
        checkBatch(arguments);
    else
        checkRender(arguments);
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
    return R"(Renders one filter of the image engine into a picture file, or applies a favourite of the editor to many files.

  lumivex-render --list                  name, display name and categories of every filter
  lumivex-render --describe NAME         the filter's attributes as JSON
  lumivex-render NAME [--set key=value]... [--image key=file]... [--fit] [--rect x,y,w,h] [--scale s] -o out.png
  lumivex-render NAME ... --repeat N     also prints 'median_ms<TAB>min_ms<TAB>max_ms' of N renders
  lumivex-render --list-favourites       names of the editor's favourites of standard mode, in their order
  lumivex-render --favourite NAME [--quiet] FILE... -o FOLDER

Values: 10 or 0.5 for numbers; 150,150 for vectors; 1,0,0,0.5 or #rrggbbaa for colors (sRGB);
six numbers a,b,c,d,tx,ty for transforms; text as it stands. Inputs that are not set have their defaults,
or with --fit values that suit inputImage (or inputBackgroundImage, or the rectangle), and second pictures made of it.
Without --rect the filter's whole extent is rendered; where that is infinite, the extent of inputImage,
or else 512 x 512 pixels at the origin. y points up. --scale is output pixels per picture pixel.
The output's extension says its format; without one it is PNG. It has 16 bits where an input picture has more than 8
and the format has room for them, else 8.
A mistake is told in one line on standard error, with exit status 2 and no output file.

With --favourite every file is written into the folder under its own name and in its own format, or as .png where that
format can't be written; Exif, IPTC and XMP entries are kept. Input files are never overwritten. A file that fails is
named on standard error, the others go on, and the exit status is 1. A terminal shows a line for each file unless
--quiet is given.
)";
}
