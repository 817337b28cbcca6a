#include "files/PictureMessages.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

constexpr char kContext[] = "PictureMessage";

/// %1 is “the file's name” or the words for a picture without one.
constexpr const char* kMessages[] = {
    QT_TRANSLATE_NOOP("PictureMessage", "There is no file %1."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 is a folder, not a picture."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 is not an ordinary file."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 can't be read: %2."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 can't be read."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 is empty."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 is not a picture of a kind that can be opened."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 is damaged or incomplete, so it can't be opened."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 is too large to be opened: %2 × %3 pixels."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 is too large to be opened."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 has a kind of pixel that can't be shown."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 can't be opened."),
    QT_TRANSLATE_NOOP("PictureMessage", "Opening %1 took too long."),
    QT_TRANSLATE_NOOP("PictureMessage", "Opening %1 was given up."),
    QT_TRANSLATE_NOOP("PictureMessage", "There is not enough memory to open %1."),
    QT_TRANSLATE_NOOP("PictureMessage", "There is no picture to write."),
    QT_TRANSLATE_NOOP("PictureMessage", "The picture was not written."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 can't be written: %2."),
    QT_TRANSLATE_NOOP("PictureMessage", "%1 can't be written."),
};

QString translated(const char* text) { return QCoreApplication::translate(kContext, text); }

QString shownName(const QString& name)
{
    if (!name.startsWith(QChar(u'“')))
        return translated(QT_TRANSLATE_NOOP("PictureMessage", "The picture"));
    return translated(QT_TRANSLATE_NOOP("PictureMessage", "“%1”")).arg(name.mid(1, name.size() - 2));
}

QRegularExpression patternOf(const char* message)
{
    QString pattern = QRegularExpression::escape(QString::fromUtf8(message));
    pattern.replace(QLatin1String("\\%1"), QString::fromUtf8("(“.*”|The picture)"));
    pattern.replace(QRegularExpression(QStringLiteral("\\\\%[23]")), QStringLiteral("(.*)"));
    return QRegularExpression(
        QRegularExpression::anchoredPattern(pattern), QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

QString shownPictureMessage(const std::string& message)
{
    const QString text = QString::fromStdString(message);
    for (const char* known : kMessages) {
        const QRegularExpressionMatch match = patternOf(known).match(text);
        if (!match.hasMatch())
            continue;
        const QString name = shownName(match.captured(1));
        switch (match.lastCapturedIndex()) {
        case 0:
            return translated(known);
        case 1:
            return translated(known).arg(name);
        case 2:
            return translated(known).arg(name, match.captured(2));
        default:
            return translated(known).arg(name, match.captured(2), match.captured(3));
        }
    }
    return text;
}
