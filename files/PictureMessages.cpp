#include "files/PictureMessages.h"

#include <QCoreApplication>

QString shownText(const Failure& failure)
{
    const QString sentence = QCoreApplication::translate("PictureMessage", sentenceFor(failure));
    return QString::fromStdString(filledIn(sentence.toStdString(), failure));
}
