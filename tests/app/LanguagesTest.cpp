#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "app/window/HelpPage.h"
#include "app/window/HelpWindow.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/UserDefaults.h"
#include "translations/Translations.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include <map>

namespace {

/// Before the window is made, which asks for its texts only once.
struct Speaking {
    explicit Speaking(const char* language) { EXPECT_TRUE(installTranslations(*qApp, QString::fromLatin1(language))); }
    ~Speaking() { qDeleteAll(qApp->findChildren<QTranslator*>()); }
};

class LanguagesTest : public testing::WithParamInterface<const char*>, Speaking, public WindowTest {
protected:
    LanguagesTest()
        : Speaking(GetParam())
    {
    }
};

void expectOneMnemonicEach(const QString& menu, const QList<QAction*>& actions)
{
    std::map<QChar, QString> taken;
    for (const QAction* action : actions) {
        const QString text = action->text();
        const qsizetype mark = text.indexOf('&');
        if (mark < 0)
            continue;
        const QString& other = taken[text.at(mark + 1).toCaseFolded()];
        EXPECT_TRUE(other.isEmpty()) << menu.toStdString() << ": " << other.toStdString() << ", " << text.toStdString();
        taken[text.at(mark + 1).toCaseFolded()] = text;
    }
}

TEST_P(LanguagesTest, NoMenuHasTwoItemsUnderOneLetter)
{
    expectOneMnemonicEach("menu bar", ui.menuBar->actions());
    // The context menu, which has no title, borrows items of several menus.
    for (const QMenu* menu : ui.menuBar->findChildren<QMenu*>())
        expectOneMnemonicEach(menu->title(), menu->actions());
}

TEST_P(LanguagesTest, StoredNamesAreEnglish)
{
    openPicture(pictureFile("picture.png", 60, 40));
    pick("CIGaussianBlur");
    ui.addFavouriteBtn->click();
    controller.saveFavorites();
    const QString list = QStringLiteral("EffectsFavorites");
    const auto records = UserDefaults::standardUserDefaults().recordsForKey(list);
    UserDefaults::standardUserDefaults().setRecordsForKey({}, list);
    ASSERT_TRUE(records && records->size() == 1);
    EXPECT_EQ(KeyedArchive::unarchivedValue(records->front().at("ToolTipName").bytes()).toString(), "Gaussian Blur");
}

/// Without the marks for the keyboard and the dots.
QString plain(QString text) { return text.remove(QRegularExpression(QStringLiteral("&|\\s*(…|\\.\\.\\.)$"))); }

TEST_P(LanguagesTest, TheHelpBookNamesMenusAsTheyAre)
{
    QStringList paths;
    for (const QMenu* menu : ui.menuBar->findChildren<QMenu*>())
        for (const QAction* item : menu->actions())
            paths << plain(menu->title()) + " ▸ " + plain(item->text());
    HelpPage page(window);
    const QDir book = QFileInfo(HelpWindow::firstPage()).dir();
    int named = 0;
    for (const QString& name : book.entryList({"*.html"})) {
        page.setSource(QUrl::fromLocalFile(book.filePath(name)));
        static const QRegularExpression path(QStringLiteral("font-weight:[6-9]00;\">([^<]+ ▸ [^<]+)<"));
        for (auto found = path.globalMatch(page.toHtml()); found.hasNext(); ++named) {
            const QString text = found.next().captured(1);
            EXPECT_TRUE(paths.contains(text)) << text.toStdString() << " on " << name.toStdString();
        }
    }
    EXPECT_GE(named, 5);
}

TEST_P(LanguagesTest, ThePanelSaysAllOfItIn240Points)
{
    UserDefaults::standardUserDefaults().removeObjectForKey(QStringLiteral("StartFiltersFitted"));
    ui.splitter->setSizes({248, 10'000, 240});
    openPicture(pictureFile("large.png", 800, 600));
    const auto expectWhole = [this] {
        QCoreApplication::processEvents();
        EXPECT_EQ(ui.controlPanel->width(), 240);
        for (const auto* button : ui.fitRow->findChildren<QAbstractButton*>())
            if (button->isVisible()) {
                EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
            }
        EXPECT_GE(ui.fitNoticeField->height(), ui.fitNoticeField->heightForWidth(ui.fitNoticeField->width()));
    };
    pick("CIGaussianBlur");
    ASSERT_TRUE(ui.fitNotice->isVisible());
    ASSERT_TRUE(ui.keepSizeBox->isVisible());
    expectWhole();
    pick("CIVignette");
    ASSERT_TRUE(QTest::qWaitFor([this] { return ui.fitNotice->isVisible(); }, 30'000));
    expectWhole();
}

INSTANTIATE_TEST_SUITE_P(InEach, LanguagesTest, testing::Values("en", "de", "fr"));

class GermanTest : Speaking, public WindowTest {
protected:
    GermanTest()
        : Speaking("de")
    {
    }
};

TEST_F(GermanTest, SpeaksOfFiltersInGerman)
{
    EXPECT_EQ(menu("menuEdit").title(), "&Bearbeiten");
    openPicture(pictureFile("picture.png", 60, 40));
    pick("CIGaussianBlur");
    EXPECT_EQ(ui.filterNameField->text(), "Gaußscher Weichzeichner");
    EXPECT_EQ(ui.listView->currentIndex().data().toString(), "Gaußscher Weichzeichner");
    EXPECT_EQ(ui.listView->currentIndex().parent().data().toString(), "Schärfe");

    CIFilter& blur = *controller.getCurrentFilter();
    controller.setFilterValueForKey(blur, 3.5, "inputRadius");
    controller.setActionNameForFilterKey(blur, "inputRadius");
    EXPECT_EQ(undo.undoMenuItemTitle(), "Rückgängig: Gaußscher Weichzeichner: Radius ändern");

    ui.addFavouriteBtn->click();
    ASSERT_EQ(ui.m_pageController->pageCount(), 1);
    EXPECT_EQ(ui.m_pageController->items().first()->toolTip(), "Gaußscher Weichzeichner");
}

TEST_F(GermanTest, OpensTheGermanHelpBook)
{
    action("actionHelp")->trigger();
    auto* help = window.findChild<HelpWindow*>();
    ASSERT_TRUE(help);
    const auto* contents = help->findChild<QListWidget*>();
    EXPECT_EQ(contents->item(0)->text(), "Willkommen");
    EXPECT_EQ(contents->currentRow(), 0);
    auto* page = help->findChild<HelpPage*>();
    EXPECT_TRUE(page->document()->resource(QTextDocument::ImageResource, QUrl("window.jpg")).isValid());
    page->setSource(page->source().resolved(QUrl("open.html"))); // as a link does
    EXPECT_EQ(page->documentTitle(), "Ein Bild öffnen");
    EXPECT_EQ(contents->currentRow(), 1);
    delete help;
}

TEST_F(GermanTest, ShowsTheEnglishPageWhereThereIsNoGermanOne)
{
    const auto write = [this](const QString& name, const QByteArray& text) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(QDir(folder.path()).mkpath("de") && file.open(QIODevice::WriteOnly) && file.write(text) > 0);
    };
    write("old.html", "old");
    write("new.html", "new, <a href=\"old.html\">older</a>");
    write("de/old.html", "alt, <a href=\"new.html\">neuer</a>");
    HelpPage page(window);
    page.setSource(QUrl::fromLocalFile(folder.filePath("old.html")));
    EXPECT_EQ(page.toPlainText(), "alt, neuer");
    page.setSource(page.source().resolved(QUrl("new.html")));
    EXPECT_EQ(page.toPlainText(), "new, older");
    page.setSource(page.source().resolved(QUrl("old.html")));
    EXPECT_EQ(page.toPlainText(), "alt, neuer");
}

TEST_F(GermanTest, SaysWhatIsWrongWithAFile)
{
    QFile noPicture(folder.filePath("Brief.png"));
    ASSERT_TRUE(noPicture.open(QIODevice::WriteOnly) && noPicture.write("not a picture at all") > 0);
    noPicture.close();
    openPicture(noPicture.fileName());
    EXPECT_EQ(ui.pictureInfoField->text(), "„Brief.png“ ist kein Bild einer Art, die geöffnet werden kann.");
    openPicture(folder.path());
    EXPECT_TRUE(ui.pictureInfoField->text().endsWith(" ist ein Ordner, kein Bild."));
    openPicture(folder.filePath("nirgends 100%2.png"));
    EXPECT_TRUE(ui.pictureInfoField->text().endsWith("Es gibt keine Datei „nirgends 100%2.png“."))
        << ui.pictureInfoField->text().toStdString();
}

} // namespace
