// The languages of the window: English in the sources, others in the .ts files of this folder.
#pragma once

#include <QStringList>

class QCoreApplication;

/// The language that a user with these preferences sees, best first ("de-CH", "fr", …): "de", "fr", or "en", which is
/// also what all get whose languages are unknown.
QString translatedLanguage(const QStringList& preferences);

/// Loads the texts of the program and those of Qt in the language of the environment (LANGUAGE, LC_ALL, LC_MESSAGES,
/// LANG). Before the first text is asked for. Without Qt's texts, which are a package of their own, those few stay
/// English.
void installTranslations(QCoreApplication& application);

/// The same for one language; "en" loads nothing. False when the program has no texts of that language.
bool installTranslations(QCoreApplication& application, const QString& language);

/// The language whose texts are loaded: "de", "fr", or "en" when there are none.
QString loadedLanguage(const QCoreApplication& application);
