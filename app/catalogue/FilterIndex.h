// Finds filters by what people type who look for them.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class OutlineItem;

/// What a row of the list is found by, in one language.
struct IndexedTexts {
    QString name{};
    QString searchWords{}; // separated by ", ", what fits best first
    QString description{}, category{};
};

/// Rows come in the order of how well they fit. What is typed counts most as a whole, then word by word. Found in a
/// name it counts more than among the search words, there more than in the description, and least in the category; at
/// the beginning of a word always more than within one. Letter case, accents and hyphens don't count. Of several typed
/// words, those of up to three letters may be missing.
class FilterIndex {
public:
    /// The row is found in each of the languages. Rows that fit equally well keep the order in which they were added.
    /// One that `isSpecial` comes after others that fit nearly as well.
    void add(const OutlineItem* row, const QString& className, const std::vector<IndexedTexts>& languages,
        bool isSpecial = false);

    struct Found {
        std::vector<const OutlineItem*> rows;
        bool isNear = false; // nothing fits; these are the nearest, if any are near
    };
    /// A wrong, missing, additional or exchanged letter, or two in long words, are forgiven if nothing fits without.
    Found find(const QString& text) const;

private:
    struct Texts {
        explicit Texts(const IndexedTexts& texts);
        QString name;
        QStringList phrases; // the search words
        QString description, category;
    };
    struct Entry {
        const OutlineItem* row;
        QString className;
        std::vector<Texts> languages;
        bool isSpecial;
    };
    enum class Slips { None, Few, Many };

    static double costIn(const Texts& texts, const QString& typed);
    static double costOfSlips(const Texts& texts, const QString& word, Slips slips);
    static double cost(const Entry& entry, const QString& typed, Slips slips);
    static double cost(const Entry& entry, const QStringList& words, Slips slips);

    std::vector<Entry> m_entries;
};
