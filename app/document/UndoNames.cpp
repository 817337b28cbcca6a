#include "app/document/UndoNames.h"

#include "controls/panel/FilterNames.h"
#include "controls/panel/ParameterText.h"
#include "platform/chain/Layers.h"
#include "platform/coreimage/CIFilter.h"

#include <QCoreApplication>

QString unInterCap1(const QString& key) { return wordsOfKey(key); }

namespace {

QString layerNoteName(const QString& key)
{
    const std::string note =
        key.section(QLatin1Char(':'), 0, 0).toStdString() + (key.contains(QLatin1Char(':')) ? ":" : "");
    if (note == kLayerAmountKey)
        return shownInputName("Amount");
    if (note == kLayerColorKey)
        return shownInputName("Color");
    return note == placingKey({}) ? QCoreApplication::translate("UndoNames", "Placing")
                                  : QCoreApplication::translate("UndoNames", "Place");
}

} // namespace

QString actionNameForFilterKey(const CIFilter& filter, const QString& key)
{
    const bool isInput = !key.startsWith(QLatin1String("layer"));
    const QString filterName = shownFilterName(CIFilter::localizedNameForFilterName(filter.name()));
    return QCoreApplication::translate("UndoNames", "Change to %1 %2", "%1 is a filter, %2 one of its parameters")
        .arg(filterName, isInput ? shownInputName(unInterCap1(key.mid(5)).toStdString()) : layerNoteName(key));
}
