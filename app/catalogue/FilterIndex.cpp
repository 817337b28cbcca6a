#include "app/catalogue/FilterIndex.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double kNotFound = std::numeric_limits<double>::infinity();
constexpr double kMissing = 100; // what a word costs that is not found, where that is allowed
constexpr double kAsWords = 2; // found as words here and there, not as a whole
constexpr double kPlace = 0.03, kNoPlace = 0.6; // later search words fit less
constexpr double kSpecial = 3; // of what fewer people look for
constexpr double kInPhrase = 0.25; // so do those of which it is a part
constexpr int kShortWord = 3, kStem = 4, kEnding = 3, kLongWord = 8; // letters
constexpr std::size_t kMostNear = 6;

/// Small letters and digits, words with one space between.
QString folded(const QString& text)
{
    QString plain;
    for (const QChar c : text.toCaseFolded().normalized(QString::NormalizationForm_KD))
        if (c.isLetterOrNumber())
            plain += c;
        else if (!c.isMark() && c != QLatin1Char('&')) // "b&w" is "bw"
            plain += QLatin1Char(' ');
    return plain.replace(QStringLiteral("ß"), QStringLiteral("ss"))
        .replace(QStringLiteral("œ"), QStringLiteral("oe"))
        .replace(QStringLiteral("colour"), QStringLiteral("color"))
        .replace(QStringLiteral("grey"), QStringLiteral("gray"))
        .simplified();
}

QStringList wordsOf(const QString& text) { return text.split(QLatin1Char(' '), Qt::SkipEmptyParts); }

enum class Fit { None, Inside, Begins, Whole };

/// How `typed` stands in the words of `text`. A word that goes on from one of the text's, as "sharpening" does from
/// "sharpen", begins like it.
Fit fit(const QString& text, const QString& typed)
{
    Fit best = Fit::None;
    for (qsizetype at = text.indexOf(typed); at >= 0; at = text.indexOf(typed, at + 1)) {
        const qsizetype end = at + typed.size();
        if (at > 0 && text[at - 1] != QLatin1Char(' '))
            best = std::max(best, typed.size() >= kShortWord ? Fit::Inside : Fit::None);
        else if (end < text.size() && text[end] != QLatin1Char(' '))
            best = std::max(best, Fit::Begins);
        else
            return Fit::Whole;
    }
    for (const QString& word : wordsOf(text))
        if (word.size() >= kStem && typed.size() - word.size() <= kEnding && typed.startsWith(word)
            && !typed.contains(QLatin1Char(' ')))
            best = std::max(best, Fit::Begins);
    return best;
}

/// How many letters are wrong, missing, additional or exchanged with their neighbor in `typed`, which may stop before
/// `word` ends.
int slipsBetween(const QString& typed, const QString& word)
{
    const int n = int(typed.size()), m = int(word.size());
    std::vector<std::vector<int>> steps(std::size_t(n + 1), std::vector<int>(std::size_t(m + 1)));
    for (int i = 0; i <= n; ++i)
        for (int j = 0; j <= m; ++j) {
            int& best = steps[std::size_t(i)][std::size_t(j)];
            best = std::max(i, j);
            if (i == 0 || j == 0)
                continue;
            const auto at = [&](int di, int dj) { return steps[std::size_t(i - di)][std::size_t(j - dj)]; };
            best = std::min({at(1, 0) + 1, at(0, 1) + 1, at(1, 1) + (typed[i - 1] != word[j - 1])});
            if (i > 1 && j > 1 && typed[i - 1] == word[j - 2] && typed[i - 2] == word[j - 1])
                best = std::min(best, at(2, 2) + 1);
        }
    return *std::min_element(steps.back().begin(), steps.back().end());
}

double place(qsizetype index) { return std::min(kNoPlace, kPlace * double(index)); }

} // namespace

FilterIndex::Texts::Texts(const IndexedTexts& texts)
    : name(folded(texts.name))
    , description(folded(texts.description))
    , category(folded(texts.category))
{
    for (const QString& phrase : texts.searchWords.split(QStringLiteral(", "), Qt::SkipEmptyParts))
        phrases << folded(phrase);
}

void FilterIndex::add(
    const OutlineItem* row, const QString& className, const std::vector<IndexedTexts>& languages, bool isSpecial)
{
    const QString key = folded(className);
    const bool isKnown =
        std::ranges::any_of(m_entries, [&](const Entry& entry) { return !key.isEmpty() && entry.className == key; });
    if (!isKnown) // a filter may stand in two groups
        m_entries.push_back({row, key, {languages.begin(), languages.end()}, isSpecial});
}

/// Of a word, or of all that is typed.
double FilterIndex::costIn(const Texts& texts, const QString& typed)
{
    if (texts.name == typed)
        return 0;
    double inWords = kNotFound, placeInWords = kNoPlace;
    for (qsizetype i = 0; i < texts.phrases.size(); ++i) {
        const Fit found = fit(texts.phrases[i], typed);
        const bool isEqual = texts.phrases[i] == typed;
        if (found >= Fit::Begins)
            placeInWords = std::min(placeInWords, place(i) + (isEqual ? 0 : kInPhrase));
        if (isEqual)
            inWords = std::min(inWords, 1.5 + place(i));
        else if (found != Fit::None)
            inWords = std::min(inWords, (found == Fit::Whole ? 3 : found == Fit::Begins ? 3.5 : 9) + place(i));
    }
    const auto among = [](Fit found, double whole, double begins, double inside) {
        return found == Fit::Whole ? whole : found == Fit::Begins ? begins : found == Fit::Inside ? inside : kNotFound;
    };
    return std::min({among(fit(texts.name, typed), 1, 2.5, 8) + placeInWords, inWords,
        among(fit(texts.description, typed), 5, 5.5, kNotFound), among(fit(texts.category, typed), 7, 7, kNotFound)});
}

double FilterIndex::costOfSlips(const Texts& texts, const QString& word, Slips slips)
{
    const qsizetype allowed = slips == Slips::Many ? word.size() * 2 / 5
        : word.size() <= kShortWord                ? 0
        : word.size() < kLongWord                  ? 1
                                                   : 2;
    const auto costOf = [&](const QString& text, double whole) {
        double best = kNotFound;
        for (const QString& other : wordsOf(text))
            if (std::abs(other.size() - word.size()) <= allowed || other.size() > word.size())
                if (const int slipped = slipsBetween(word, other); slipped <= allowed)
                    best = std::min(best, whole + slipped + 0.1 * double(std::abs(other.size() - word.size())));
        return best;
    };
    double best = costOf(texts.name, 12);
    for (qsizetype i = 0; i < texts.phrases.size(); ++i)
        best = std::min(best, costOf(texts.phrases[i], 12.5 + place(i)));
    return best;
}

double FilterIndex::cost(const Entry& entry, const QString& typed, Slips slips)
{
    double best = entry.className == typed                         ? 0
        : entry.className.startsWith(typed)                        ? 2.5
        : typed.size() >= kStem && entry.className.contains(typed) ? 8.5
                                                                   : kNotFound;
    for (const Texts& texts : entry.languages) {
        best = std::min(best, costIn(texts, typed));
        if (slips != Slips::None)
            best = std::min(best, costOfSlips(texts, typed, slips));
    }
    return best + (entry.isSpecial && best > 0 ? kSpecial : 0);
}

double FilterIndex::cost(const Entry& entry, const QStringList& words, Slips slips)
{
    const bool allAreShort = std::ranges::all_of(words, [](const QString& word) { return word.size() <= kShortWord; });
    double sum = 0;
    bool isAnyFound = false;
    for (const QString& word : words) {
        const double found = cost(entry, word, slips);
        const bool mayMiss = slips == Slips::Many || (word.size() <= kShortWord && !allAreShort);
        isAnyFound |= found < kNotFound && (word.size() > kShortWord || allAreShort);
        sum += found < kNotFound || !mayMiss ? found : slips == Slips::Many ? kMissing : 1;
    }
    return isAnyFound ? kAsWords + sum / double(words.size()) : kNotFound;
}

FilterIndex::Found FilterIndex::find(const QString& text) const
{
    const QString typed = folded(text);
    const QStringList words = wordsOf(typed);
    if (words.isEmpty())
        return {{}, true};
    for (const Slips slips : {Slips::None, Slips::Few, Slips::Many}) {
        std::vector<std::pair<double, const OutlineItem*>> fitting;
        for (const Entry& entry : m_entries) {
            const double whole = cost(entry, typed, Slips::None);
            if (const double best = std::min(whole, cost(entry, words, slips)); best < kNotFound)
                fitting.emplace_back(best, entry.row);
        }
        if (fitting.empty())
            continue;
        std::ranges::stable_sort(fitting, {}, [](const auto& row) { return row.first; });
        if (slips == Slips::Many && fitting.size() > kMostNear)
            fitting.resize(kMostNear);
        Found found{{}, slips == Slips::Many};
        for (const auto& [fits, row] : fitting)
            found.rows.push_back(row);
        return found;
    }
    return {{}, true};
}
