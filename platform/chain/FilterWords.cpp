#include "platform/chain/FilterWords.h"

#include <algorithm>
#include <vector>

#include <QFile>
#include <QStringList>

namespace {

using Table = std::map<std::string, FilterWords, std::less<>>;
using InputTable = std::map<std::string, std::string, std::less<>>;

/// The parts of each line, which stand between bars.
std::vector<std::vector<std::string>> readLines(const char* name)
{
    std::vector<std::vector<std::string>> lines;
    QFile file(QStringLiteral(":/words/") + QLatin1String(name));
    if (file.open(QIODevice::ReadOnly))
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
            std::vector<std::string>& parts = lines.emplace_back();
            for (const QString& part : line.split(QStringLiteral(" | ")))
                parts.push_back(part.toStdString());
        }
    return lines;
}

/// A line is "class | description | search words".
Table readTable()
{
    Table table;
    for (const auto& line : readLines("filter_words.txt"))
        if (line.size() == 3)
            table[line[0]] = {line[1], line[2]};
    return table;
}

/// A line is "key | description".
InputTable readInputs()
{
    InputTable table;
    for (const auto& line : readLines("input_words.txt"))
        if (line.size() == 2)
            table[line[0]] = line[1];
    return table;
}

} // namespace

const Table& allFilterWords()
{
    static const Table table = readTable();
    return table;
}

const FilterWords* filterWords(std::string_view className)
{
    const Table& table = allFilterWords();
    const auto found = table.find(className);
    return found == table.end() ? nullptr : &found->second;
}

const InputTable& allInputDescriptions()
{
    static const InputTable table = readInputs();
    return table;
}

std::string inputDescription(const std::string& className, const std::string& key)
{
    std::string anyDigit = key;
    std::ranges::replace_if(
        anyDigit, [](char c) { return c >= '0' && c <= '9'; }, '#');
    const InputTable& table = allInputDescriptions();
    for (const std::string& name : {className + "." + key, className + "." + anyDigit, key, anyDigit})
        if (const auto found = table.find(name); found != table.end())
            return found->second;
    return {};
}
