#include "app/document/UndoHistory.h"

#include <algorithm>

namespace {

/// How many names from `first` on are the same.
int runLength(const QStringList& names, int first)
{
    const auto begin = names.begin() + first;
    const auto end = std::find_if(begin, names.end(), [&](const QString& name) { return name != *begin; });
    return int(end - begin);
}

} // namespace

std::vector<UndoHistoryLine> undoHistoryLines(const QStringList& undoNames, const QStringList& redoNames, int most)
{
    std::vector<UndoHistoryLine> past, future;
    for (int i = 0, steps = 0; i < undoNames.size(); i += steps) {
        steps = runLength(undoNames, i);
        past.push_back({undoNames[i], steps, -i});
    }
    past.push_back({{}, 0, int(-undoNames.size())});
    for (int i = 0, steps = 0; i < redoNames.size(); i += steps) {
        steps = runLength(redoNames, i);
        future.push_back({redoNames[i], steps, i + steps});
    }
    // The past gets what the future leaves, and at least half.
    const std::size_t all = std::size_t(most);
    future.resize(std::min(future.size(), all - std::min(past.size(), (all + 1) / 2)));
    past.resize(std::min(past.size(), all - future.size()));
    std::vector<UndoHistoryLine> lines(future.rbegin(), future.rend());
    lines.insert(lines.end(), past.begin(), past.end());
    return lines;
}
