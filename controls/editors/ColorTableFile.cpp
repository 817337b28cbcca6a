// Reads the text of .cube files.
#include "controls/editors/ColorTable.h"

#include <charconv>
#include <cmath>
#include <optional>

namespace {

using Reason = ColorTableFault::Reason;

constexpr std::size_t kLongestLine = 65536, kLargestCube = 256; // entries along an edge

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Takes the first word off.
std::string_view takeWord(std::string_view& text)
{
    const std::string_view word = text.substr(0, text.find_first_of(" \t"));
    text = trimmed(text.substr(word.size()));
    return word;
}

template <class Number>
std::optional<Number> numberOf(std::string_view word)
{
    if (word.size() > 1 && word.front() == '+' && word[1] != '-')
        word.remove_prefix(1);
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        return {};
    return number;
}

/// The numbers of the text, if they are as many and nothing else.
template <std::size_t count>
std::optional<std::array<double, count>> numbersOf(std::string_view text)
{
    std::array<double, count> numbers{};
    for (double& number : numbers) {
        const std::optional<double> found = numberOf<double>(takeWord(text));
        if (!found || !std::isfinite(*found))
            return {};
        number = *found;
    }
    if (!text.empty())
        return {};
    return numbers;
}

class Parser {
public:
    ColorTable parse(std::string_view text)
    {
        if (text.starts_with("\xEF\xBB\xBF"))
            text.remove_prefix(3);
        while (!text.empty()) {
            const std::size_t end = text.find('\n');
            ++m_line;
            takeLine(trimmed(text.substr(0, end)));
            text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        }
        m_line = 0;
        require(m_table.side > 0, Reason::NoSize);
        require(m_table.entries.size() == entryCount(), Reason::TooFew);
        for (std::size_t c = 0; c < 3; ++c)
            require(m_table.low[c] < m_table.high[c], Reason::BadDomain);
        return std::move(m_table);
    }

private:
    void require(bool condition, Reason reason) const
    {
        if (!condition)
            throw ColorTableFault{reason, m_line};
    }
    std::size_t entryCount() const
    {
        return m_table.isCube ? m_table.side * m_table.side * m_table.side : m_table.side;
    }

    void takeLine(std::string_view line)
    {
        if (line.empty() || line.front() == '#')
            return;
        const bool isWord =
            (line.front() >= 'A' && line.front() <= 'Z') || (line.front() >= 'a' && line.front() <= 'z');
        if (isWord)
            takeKeyword(line);
        else
            takeEntry(line);
    }

    void takeEntry(std::string_view line)
    {
        require(m_table.side > 0, Reason::NoSize);
        require(m_table.entries.size() < entryCount(), Reason::TooMany);
        const std::optional<ColorTriple> entry = numbersOf<3>(line);
        require(entry.has_value(), Reason::BadNumbers);
        m_table.entries.push_back(*entry);
    }

    void takeKeyword(std::string_view rest)
    {
        const std::string_view word = takeWord(rest);
        require(word != "nan" && word != "inf", Reason::BadNumbers);
        require(m_table.entries.empty(), Reason::LateWord);
        if (word == "TITLE")
            takeTitle(rest);
        else if (word == "LUT_1D_SIZE" || word == "LUT_3D_SIZE")
            takeSize(rest, word == "LUT_3D_SIZE");
        else if (word == "DOMAIN_MIN" || word == "DOMAIN_MAX")
            takeDomain(rest, word == "DOMAIN_MIN" ? m_table.low : m_table.high);
        else if (word == "LUT_1D_INPUT_RANGE" || word == "LUT_3D_INPUT_RANGE")
            takeRange(rest);
        else
            require(false, Reason::UnknownWord);
    }

    void takeTitle(std::string_view rest)
    {
        require(rest.size() >= 2 && rest.front() == '"' && rest.back() == '"', Reason::BadTitle);
        m_table.title = rest.substr(1, rest.size() - 2);
    }
    void takeSize(std::string_view rest, bool isCube)
    {
        require(m_table.side == 0, Reason::TwoSizes);
        const std::optional<std::size_t> side = numberOf<std::size_t>(rest);
        require(side && *side >= 2 && *side <= (isCube ? kLargestCube : kLongestLine), Reason::BadSize);
        m_table.side = *side;
        m_table.isCube = isCube;
    }
    void takeDomain(std::string_view rest, ColorTriple& end) const
    {
        const std::optional<ColorTriple> numbers = numbersOf<3>(rest);
        require(numbers.has_value(), Reason::BadDomain);
        end = *numbers;
    }
    void takeRange(std::string_view rest)
    {
        const std::optional<std::array<double, 2>> ends = numbersOf<2>(rest);
        require(ends.has_value(), Reason::BadDomain);
        m_table.low.fill((*ends)[0]);
        m_table.high.fill((*ends)[1]);
    }

    ColorTable m_table;
    std::size_t m_line = 0;
};

} // namespace

ColorTable parsedColorTable(std::string_view text) { return Parser().parse(text); }
