#include "platform/chain/FilterWords.h"

#include <QFile>

namespace {

using Table = std::map<std::string, FilterWords, std::less<>>;

/// A line is "class | description | search words".
Table readTable()
{
    Table table;
    QFile file(QStringLiteral(":/words/filter_words.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return table;
    for (const QByteArray& line : file.readAll().split('\n')) {
        const qsizetype first = line.indexOf(" | "), second = line.indexOf(" | ", first + 1);
        if (first > 0 && second > 0)
            table[line.first(first).toStdString()] = {
                line.mid(first + 3, second - first - 3).toStdString(), line.mid(second + 3).toStdString()};
    }
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
