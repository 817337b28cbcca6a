#include "WindowFixture.h"

#include "app/commands/Command.h"
#include "app/window/HelpPage.h"
#include "app/window/HelpWindow.h"
#include "platform/foundation/Appearance.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {

QDir book() { return QFileInfo(HelpWindow::firstPage()).dir(); }

QString textOf(const QString& page)
{
    QFile file(book().filePath(page));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(page);
    return QString::fromUtf8(file.readAll());
}

/// What the expression's first group finds in the text.
QStringList all(const char* expression, const QString& text)
{
    QStringList found;
    const QRegularExpression pattern{QLatin1String(expression)};
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

QStringList pages() { return book().entryList({"*.html"}); }
QStringList languages() { return book().entryList(QDir::Dirs | QDir::NoDotAndDotDot); }

/// Links, pictures and places of keys, in any order: languages order a sentence differently.
QStringList marksOf(const QString& text)
{
    QStringList marks = all("((?:href|src)=\"[^\"]+\"|\\{\\w+\\})", text);
    marks.sort();
    return marks;
}

class HelpTest : public WindowTest {
protected:
    ~HelpTest() override { delete help(); }
    HelpWindow* help() const { return window.findChild<HelpWindow*>(); }
    void open()
    {
        action("actionHelp")->trigger();
        ASSERT_TRUE(help());
        ASSERT_TRUE(QTest::qWaitForWindowActive(help()));
    }
    void press(const char* name) const
    {
        for (QToolButton* button : help()->findChildren<QToolButton*>())
            if (button->accessibleName() == name)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    HelpPage& page() const { return *help()->findChild<HelpPage*>(); }
    QString shown() const { return page().source().fileName(); }
};

} // namespace

TEST_F(HelpTest, EveryLinkAndPictureOfTheBookExists)
{
    ASSERT_GE(pages().size(), 10);
    QStringList pictures;
    for (const QString& page : pages()) {
        SCOPED_TRACE(page.toStdString());
        const QString text = textOf(page);
        for (const QString& link : all("href=\"([^\"]+)\"", text))
            EXPECT_TRUE(book().exists(link)) << qPrintable(link);
        for (const QString& picture : all("src=\"([^\"]+)\"", text)) {
            pictures << picture << QString(picture).replace('.', "-dark.");
            for (const QString& twin : {picture, pictures.last()}) {
                const QSize size = QImageReader(book().filePath(twin)).size();
                EXPECT_TRUE(size.isValid()) << qPrintable(twin);
                EXPECT_LE(size.width(), 600) << qPrintable(twin) << " is wider than the page";
            }
        }
        EXPECT_EQ(all("<img[^>]*alt=\"([^\"]+)\"", text).size(), all("(<img)", text).size())
            << "a picture without words";
    }
    qint64 bytes = 0;
    for (const QFileInfo& file : book().entryInfoList({"*.png", "*.jpg"})) {
        EXPECT_TRUE(pictures.contains(file.fileName())) << qPrintable(file.fileName()) << " is on no page";
        bytes += file.size();
    }
    EXPECT_LT(bytes, 1'500'000);
}

TEST_F(HelpTest, EveryLanguageHasTheWholeBook)
{
    EXPECT_EQ(languages(), QStringList({"de", "fr"}));
    for (const QString& language : languages()) {
        EXPECT_EQ(QDir(book().filePath(language)).entryList({"*.html"}), pages());
        for (const QString& page : pages()) {
            SCOPED_TRACE((language + '/' + page).toStdString());
            const QString text = textOf(language + '/' + page);
            EXPECT_EQ(marksOf(text), marksOf(textOf(page)));
            EXPECT_EQ(all("<html lang=\"(\\w+)\"", text), QStringList(language));
            EXPECT_EQ(all("(<h2|<li|<tr|<p)", text), all("(<h2|<li|<tr|<p)", textOf(page)));
        }
    }
}

TEST_F(HelpTest, TheFirstPageCallsTheOthersByTheirTitles)
{
    for (const QString& folder : QStringList{"."} + languages()) {
        const QString first = textOf(folder + "/main.html");
        for (const QString& page : all("<li><a href=\"([^\"]+)\"", first)) {
            const QString text = textOf(folder + '/' + page);
            EXPECT_EQ(all("<title>(.+)</title>", text), all("<h1>(.+)</h1>", text));
            EXPECT_EQ(all("<title>(.+)</title>", text), all(qPrintable("<li><a href=\"" + page + "\">(.+)</a>"), first))
                << qPrintable(folder + '/' + page);
        }
    }
}

TEST_F(HelpTest, PagesNameTheKeysOfTheMenus)
{
    for (const QString& page : pages())
        for (const QString& name : all("\\{(\\w+)\\}", textOf(page))) {
            const QAction* item = action(qPrintable(name));
            ASSERT_TRUE(item) << qPrintable(name) << " on " << qPrintable(page);
            EXPECT_FALSE(item->shortcut().isEmpty()) << qPrintable(name) << " on " << qPrintable(page);
        }
    EXPECT_EQ(
        HelpPage::withKeys("a {actionOpen} b {noAction}", window), "a <span class=\"key\">Ctrl+O</span> b {noAction}");
}

TEST_F(HelpTest, ThePageOfKeysHasEveryCommandThatHasOne)
{
    const QStringList named = all("\\{(\\w+)\\}", textOf("keys.html"));
    for (const Command& menu : Command::all())
        for (const Command& command : menu.items)
            EXPECT_EQ(named.count(QLatin1String(command.name)), command.keys.isEmpty() ? 0 : 1) << command.name;
}

TEST_F(HelpTest, F1OpensTheBookOnceAndListsItsPages)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    HelpWindow* opened = help();
    ASSERT_TRUE(opened);
    EXPECT_TRUE(QTest::qWaitForWindowActive(opened));
    EXPECT_EQ(shown(), "main.html");
    EXPECT_EQ(opened->findChild<QListWidget*>()->count(), pages().size()) << "a page that nobody finds";
    action("actionHelp")->trigger();
    EXPECT_EQ(window.findChildren<HelpWindow*>().size(), 1);
    opened->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !help(); })) << "it would come back where it was left";
}

TEST_F(HelpTest, LeadsFromPageToPageAndBack)
{
    open();
    auto* contents = help()->findChild<QListWidget*>();
    QTest::keyClick(contents, Qt::Key_Down);
    EXPECT_EQ(shown(), "open.html");
    page().setSource(page().source().resolved(QUrl("filters.html"))); // as a link does
    EXPECT_EQ(shown(), "filters.html");
    EXPECT_EQ(contents->currentItem()->text(), page().documentTitle());
    press("Back");
    press("Back");
    EXPECT_EQ(shown(), "main.html");
    press("Forward");
    EXPECT_EQ(shown(), "open.html");
    EXPECT_EQ(contents->currentRow(), 1);
}

TEST_F(HelpTest, PicturesFitTheLook)
{
    open();
    const auto picture = [this] {
        const QVariant loaded = page().document()->resource(QTextDocument::ImageResource, QUrl("window.jpg"));
        return loaded.canConvert<QImage>() ? loaded.value<QImage>() : QImage::fromData(loaded.toByteArray());
    };
    Appearance::shared().setChoice(Appearance::Choice::Light);
    const QImage light = picture();
    Appearance::shared().setChoice(Appearance::Choice::Dark);
    EXPECT_FALSE(picture().isNull());
    EXPECT_NE(picture(), light);
    EXPECT_EQ(shown(), "main.html");
    Appearance::shared().setChoice(Appearance::Choice::System);
}

TEST_F(HelpTest, AboutTellsVersionAndLicense)
{
    QCoreApplication::setApplicationVersion("1.2.3");
    QString text;
    QTimer::singleShot(0, [&] {
        auto* about = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(about);
        for (const QLabel* label : about->findChildren<QLabel*>())
            text += label->text();
        QTest::keyClick(about, Qt::Key_Escape);
    });
    action("actionAbout")->trigger();
    for (const char* part : {"1.2.3", "GPL-3.0-or-later", "Qt 6", "libvips"})
        EXPECT_TRUE(text.contains(part)) << part;
}
