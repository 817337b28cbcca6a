#include "translations/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

const QString kEnglish = QStringLiteral("en");
const QString kOwnTexts = QStringLiteral(":/translations");

bool install(QCoreApplication& application, const QString& file, const QString& folder)
{
    auto* translator = new QTranslator(&application);
    if (translator->load(file, folder))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

} // namespace

QString translatedLanguage(const QStringList& preferences)
{
    // Qt would go on to German for somebody who wants English and then German: there is no file of English texts.
    for (const QString& preference : preferences) {
        const QString language = preference.section(QLatin1Char('-'), 0, 0);
        if (language == kEnglish || language == QLatin1String("C"))
            return kEnglish;
        if (language == QLatin1String("de") || language == QLatin1String("fr"))
            return language;
    }
    return kEnglish;
}

void installTranslations(QCoreApplication& application)
{
    installTranslations(application, translatedLanguage(QLocale::system().uiLanguages()));
}

bool installTranslations(QCoreApplication& application, const QString& language)
{
    if (language == kEnglish)
        return true;
    install(application, QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return install(application, QStringLiteral("lumivex_") + language, kOwnTexts);
}

QString loadedLanguage(const QCoreApplication& application)
{
    for (const auto* translator : application.findChildren<const QTranslator*>())
        if (translator->filePath().startsWith(kOwnTexts))
            return translator->language();
    return kEnglish;
}
