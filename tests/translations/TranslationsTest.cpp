#include "translations/Translations.h"

#include "controls/panel/FilterNames.h"

#include <gmock/gmock.h>
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

#include <map>

namespace {

struct Message {
    bool isFinished = false, isPlural = false;
    QStringList texts; // several for plurals
};
using Key = std::tuple<std::string, std::string, std::string>; // context, source, comment
using Messages = std::map<Key, Message>;

Messages messagesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    Messages messages;
    std::string context, source, comment;
    Message message;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::EndElement && xml.name() == QLatin1String("message"))
            messages[{context, source, comment}] = message;
        if (!xml.isStartElement())
            continue;
        const QString element = xml.name().toString();
        if (element == "name") {
            context = xml.readElementText().toStdString();
        } else if (element == "message") {
            source = comment = {};
            message = {};
            message.isPlural = xml.attributes().value("numerus") == QLatin1String("yes");
        } else if (element == "source") {
            source = xml.readElementText().toStdString();
        } else if (element == "comment") {
            comment = xml.readElementText().toStdString();
        } else if (element == "translation") {
            message.isFinished = !xml.attributes().hasAttribute("type");
            if (!message.isPlural)
                message.texts << xml.readElementText();
        } else if (element == "numerusform") {
            message.texts << xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

std::set<Key> keysOf(const Messages& messages)
{
    std::set<Key> keys;
    for (const auto& [key, message] : messages)
        keys.insert(key);
    return keys;
}

/// %1, %n, and how often a letter is marked for the keyboard.
std::multiset<std::string> marksOf(const QString& text)
{
    static const QRegularExpression mark("%L?(\\d|n)|&");
    std::multiset<std::string> marks;
    for (auto found = mark.globalMatch(text); found.hasNext();)
        marks.insert(found.next().captured().toStdString());
    return marks;
}

class TranslationsTest : public testing::TestWithParam<const char*> {
protected:
    ~TranslationsTest() override { qDeleteAll(application.findChildren<QTranslator*>()); }
    static QString fileName() { return QStringLiteral("lumivex_%1.ts").arg(GetParam()); }
    static QString path() { return QDir(LUMIVEX_TRANSLATIONS).filePath(fileName()); }

    int count = 1;
    char name[2] = "t", *arguments[1] = {name};
    QCoreApplication application{count, arguments};
};

TEST_P(TranslationsTest, AreFinishedAndFitTheirSources)
{
    const Messages messages = messagesOf(path());
    ASSERT_GT(messages.size(), 500u);
    for (const auto& [key, message] : messages) {
        SCOPED_TRACE(testing::PrintToString(key));
        const QString source = QString::fromStdString(std::get<1>(key));
        EXPECT_TRUE(message.isFinished);
        EXPECT_EQ(message.texts.size(), message.isPlural ? 2 : 1);
        for (const QString& text : message.texts) {
            EXPECT_EQ(marksOf(text), marksOf(source));
            EXPECT_EQ(text.trimmed().isEmpty(), source.trimmed().isEmpty());
            EXPECT_EQ(text.endsWith(':'), source.endsWith(':'));
            EXPECT_EQ(text.count('\n'), source.count('\n'));
            EXPECT_EQ(text.startsWith(' '), source.startsWith(' '));
        }
    }
}

TEST_P(TranslationsTest, HoldExactlyWhatTheSourcesSay)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(fileName());
    ASSERT_TRUE(QFile::copy(path(), copy));
    const QStringList arguments{LUMIVEX_LUPDATE, LUMIVEX_FILTER_TEXTS, folder.path()};
    ASSERT_EQ(QProcess::execute(QStringLiteral(LUMIVEX_TRANSLATIONS "/update"), arguments), 0);
    EXPECT_THAT(keysOf(messagesOf(copy)), testing::ContainerEq(keysOf(messagesOf(path()))))
        << "build update_translations and translate what is new";
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationsTest, testing::Values("de", "fr"));

TEST_F(TranslationsTest, TravelInsideTheProgram)
{
    EXPECT_EQ(shownFilterName("Gaussian Blur"), "Gaussian Blur");
    EXPECT_FALSE(installTranslations(application, "it"));
    EXPECT_TRUE(installTranslations(application, "en"));
    EXPECT_EQ(loadedLanguage(application), "en");
    EXPECT_EQ(shownFilterName("Gaussian Blur"), "Gaussian Blur");
    EXPECT_TRUE(installTranslations(application, "de"));
    EXPECT_EQ(loadedLanguage(application), "de");
    EXPECT_EQ(shownFilterName("Gaussian Blur"), "Gaußscher Weichzeichner");
    EXPECT_EQ(shownInputName("Radius"), "Radius");
    EXPECT_EQ(shownInputName("Of a plug-in"), "Of a plug-in");
}

TEST(TranslatedLanguage, IsTheFirstThatTheUserKnows)
{
    EXPECT_EQ(translatedLanguage({}), "en");
    EXPECT_EQ(translatedLanguage({"C"}), "en");
    EXPECT_EQ(translatedLanguage({"de-CH", "de-Latn-CH", "de"}), "de");
    EXPECT_EQ(translatedLanguage({"it-IT", "it", "fr-CA", "de"}), "fr");
    EXPECT_EQ(translatedLanguage({"en-US", "en", "de"}), "en");
    EXPECT_EQ(translatedLanguage({"it", "pt-BR"}), "en");
}

TEST(TranslatedLanguage, ComesFromTheEnvironment)
{
    const auto helpWith = [](const QStringList& variables) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
            environment.remove(name);
        for (const QString& variable : variables)
            environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
        program.setProcessEnvironment(environment);
        program.start(LUMIVEX_PROGRAM, {"--help"});
        EXPECT_TRUE(program.waitForFinished());
        return program.readAllStandardOutput().toStdString();
    };
    EXPECT_THAT(helpWith({"LANG=de_DE.UTF-8"}), testing::HasSubstr("Bearbeitet ein Bild"));
    EXPECT_THAT(helpWith({"LANG=de_DE.UTF-8", "LC_MESSAGES=fr_FR.UTF-8"}), testing::HasSubstr("Retouche une image"));
    EXPECT_THAT(helpWith({"LANG=fr_FR.UTF-8", "LANGUAGE=de:fr"}), testing::HasSubstr("Bearbeitet ein Bild"));
    EXPECT_THAT(helpWith({"LANG=de_DE.UTF-8", "LC_ALL=C.UTF-8"}), testing::HasSubstr("Edits a picture"));
}

} // namespace
