#include "app/document/UndoNames.h"

#include "controls/panel/FilterNames.h"
#include "controls/panel/ParameterText.h"
#include "platform/coreimage/CIFilter.h"

#include <QCoreApplication>

QString unInterCap1(const QString& key) { return wordsOfKey(key); }

QString actionNameForFilterKey(const CIFilter& filter, const QString& key)
{
    const QString filterName = shownFilterName(CIFilter::localizedNameForFilterName(filter.name()));
    return QCoreApplication::translate("UndoNames", "Change to %1 %2", "%1 is a filter, %2 one of its parameters")
        .arg(filterName, shownInputName(unInterCap1(key.mid(5)).toStdString()));
}
