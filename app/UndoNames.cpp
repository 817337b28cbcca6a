#include "app/UndoNames.h"

#include "platform/coreimage/CIFilter.h"

#include <QCoreApplication>

QString unInterCap1(const QString& key)
{
    QString words = key;
    for (qsizetype i = 1; i < words.size(); ++i) {
        const QChar c = words.at(i);
        const bool startsWord = c != c.toLower() || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
        if (startsWord)
            words.insert(i++, QLatin1Char(' '));
    }
    return words;
}

QString actionNameForFilterKey(const CIFilter& filter, const QString& key)
{
    const QString filterName = QString::fromStdString(CIFilter::localizedNameForFilterName(filter.name()));
    return QCoreApplication::translate("UndoNames", "Change to %1 %2", "%1 is a filter, %2 one of its parameters")
        .arg(filterName, unInterCap1(key.mid(5)));
}
