#include "WindowFixture.h"

#include "app/catalogue/LooksPopup.h"
#include "app/catalogue/OutlineModel.h"
#include "app/catalogue/OutlineView.h"
#include "app/catalogue/Thumbnail.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/imageio/PictureReader.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QProcess>
#include <QTest>

namespace {

const QString kList = QStringLiteral("EffectsFavorites");

class FavouritesTest : public WindowTest {
protected:
    FavouritesTest() { openPicture(pictureFile("picture.png", 60, 40)); }
    ~FavouritesTest() override { UserDefaults::standardUserDefaults().setRecordsForKey({}, kList); }

    onlyTextClosedButton* button(int index) const
    {
        return qobject_cast<onlyTextClosedButton*>(ui.m_pageController->items().value(index));
    }
    /// As the user does it: the press is where the strip shows the button.
    void press(QWidget* widget) const { QTest::mouseClick(widget, Qt::LeftButton); }
    onlyTextClosedButton* addFavourite(const QString& filter, const std::string& key = {}, const CIValue& value = {})
    {
        pick(filter);
        if (!key.empty())
            controller.setFilterValueForKey(*controller.getCurrentFilter(), value, key);
        press(ui.addFavouriteBtn);
        return button(ui.m_pageController->pageCount() - 1);
    }
    double number(const char* key) { return controller.getCurrentFilter()->valueForKey(key).toDouble(); }
    void closeAndReadAgain()
    {
        controller.saveFavorites();
        controller.readFavorites();
    }
};

TEST_F(FavouritesTest, BringFilterAndSettingsBackAndGoAwayAtTheSecondPress)
{
    EXPECT_FALSE(ui.addFavouriteBtn->isEnabled());
    controller.addFavorites();
    EXPECT_EQ(ui.m_pageController->pageCount(), 0) << "there is nothing to add";
    onlyTextClosedButton* blur = addFavourite("CIGaussianBlur", "inputRadius", 3.5);
    onlyTextClosedButton* twirl = addFavourite("CITwirlDistortion", "inputCenter", CIVector{11, 22});
    ASSERT_TRUE(blur && twirl);
    EXPECT_EQ(blur->toolTip(), "Gaussian Blur");
    EXPECT_EQ(blur->accessibleName(), "Gaussian Blur");
    EXPECT_EQ(blur->getBackImage().deviceIndependentSize(), QSizeF(40, 25));
    EXPECT_FALSE(blur->isChecked() || twirl->isChecked());
    EXPECT_TRUE(ui.listView->selectedItem()) << "adding changes nothing else";

    press(blur);
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIGaussianBlur");
    EXPECT_EQ(number("inputRadius"), 3.5);
    EXPECT_TRUE(blur->isChecked());
    EXPECT_FALSE(ui.listView->selectedItem());
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_EQ(undo.undoActionName(), "Choose Favourite");
    undo.undo();
    EXPECT_NE(number("inputRadius"), 3.5);
    undo.redo();
    EXPECT_EQ(number("inputRadius"), 3.5) << "all values are one step";

    press(twirl);
    EXPECT_FALSE(blur->isChecked());
    EXPECT_TRUE(twirl->isChecked());
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputCenter").toVector(), (CIVector{11, 22}));
    press(twirl);
    EXPECT_FALSE(controller.getCurrentFilter());
    EXPECT_FALSE(twirl->isChecked());

    press(twirl);
    pick("CIColorInvert");
    EXPECT_FALSE(twirl->isChecked()) << "the list takes over";
    press(twirl);
    controller.escapeEffect();
    EXPECT_FALSE(twirl->isChecked());
}

TEST_F(FavouritesTest, LooksComeWithTheProgramAndStayOutOfTheUsersOwn)
{
    openPicture(pictureFile("plain.png", 90, 60));
    QTest::mouseClick(ui.looksBtn, Qt::LeftButton);
    auto* popup = window.findChild<LooksPopup*>();
    ASSERT_TRUE(popup && popup->isVisible());
    ASSERT_EQ(popup->count(), 12);
    const auto picture = [&](int row) { return popup->item(row)->icon().pixmap(96, 60).toImage(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture(0) != picture(6) && picture(6) != picture(8); }, 20000))
        << "each has a picture of its own";
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::mouseClick(popup->viewport(), Qt::LeftButton, {}, popup->visualItemRect(popup->item(8)).center());
    EXPECT_FALSE(popup->isVisible());
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIFalseColor");
    EXPECT_EQ(ui.m_pageController->pageCount(), 0);

    QTest::keyClicks(ui.searchField, "polaroid");
    const QModelIndex group = ui.listView->model()->index(1, 0);
    EXPECT_EQ(group.data().toString(), "Looks and Effects");
    click(ui.listView->model()->index(0, 0, group).data(OutlineModel::ItemRole).value<const OutlineItem*>());
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIBlendWithMask");
    EXPECT_TRUE(controller.wasChanged());
}

TEST_F(FavouritesTest, RemovingTheOneThatIsShownClearsTheEffect)
{
    addFavourite("CIGaussianBlur");
    addFavourite("CIColorInvert");
    press(button(0));
    button(1)->addCloseBtn();
    controller.removeFavorites(button(1));
    EXPECT_TRUE(controller.getCurrentFilter()) << "another one was removed";
    EXPECT_EQ(ui.m_pageController->pageCount(), 1);
    EXPECT_TRUE(action("actionRemoveFavourite")->isEnabled());
    action("actionRemoveFavourite")->trigger();
    EXPECT_FALSE(controller.getCurrentFilter());
    EXPECT_EQ(ui.m_pageController->pageCount(), 0);
    EXPECT_FALSE(action("actionRemoveFavourite")->isEnabled());
    controller.removeFavorites(nullptr);
}

TEST_F(FavouritesTest, EveryKindOfInputComesBackFromTheDefaults)
{
    const CIImage shine = controller.defaultAlphaEMap();
    addFavourite("CIGlassDistortion", "inputTexture", shine);
    addFavourite("CIAffineTransform", "inputTransform", CIAffineTransform{1, 2, 3, 4, 5, 6.5});
    addFavourite("CILinearGradient", "inputColor0", CIColor(0.25, 0.5, 0.75, 0.125));
    addFavourite("CICrop", "inputRectangle", CIVector{1, 2, 30, 20});
    closeAndReadAgain();
    ASSERT_EQ(ui.m_pageController->pageCount(), 4);
    const auto value = [&](int index, const char* key) {
        press(button(index));
        return controller.getCurrentFilter() ? controller.getCurrentFilter()->valueForKey(key) : CIValue();
    };
    EXPECT_EQ(button(3)->toolTip(), "Crop");
    EXPECT_EQ(button(0)->getBackImage().deviceIndependentSize(), QSizeF(40, 25));
    EXPECT_EQ(value(0, "inputTexture").toImage().extent(), shine.extent());
    EXPECT_EQ(value(1, "inputTransform").toTransform(), (CIAffineTransform{1, 2, 3, 4, 5, 6.5}));
    EXPECT_EQ(value(2, "inputColor0").toColor(), CIColor(0.25, 0.5, 0.75, 0.125));
    EXPECT_EQ(value(3, "inputRectangle").toVector(), (CIVector{1, 2, 30, 20}));
    closeAndReadAgain(); // pictures that were never looked at are kept, too
    EXPECT_EQ(value(0, "inputTexture").toImage().extent(), shine.extent());
}

TEST_F(FavouritesTest, SurviveDamageUnknownFiltersAndThumbnailsThatAreNone)
{
    const auto data = [](const CIValue& value) { return StoredData(KeyedArchive::archivedData(value)); };
    const QByteArray tiff = tiffOfThumbnail(favouriteThumbnail(QImage(8, 8, QImage::Format_RGB32)));
    const auto* bytes = reinterpret_cast<const std::byte*>(tiff.constData());
    const StoredData thumbnail = data(CIData(bytes, bytes + tiff.size()));
    UserDefaults::standardUserDefaults().setRecordsForKey(
        {{{"class", data("CINoSuchFilter")}, {"ButtonImage", thumbnail}, {"inputRadius", data(3)}},
            {{"class", data("CIGaussianBlur")}, {"ButtonImage", data(CIData{std::byte(1)})}, {"inputRadius", data(7)}},
            {{"class", data("CIGaussianBlur")}, {"ButtonImage", thumbnail}, {"inputRadius", QByteArray("damaged")},
                {"inputImage", QByteArray()}, {"noInput", data("ignored")}},
            {{"ToolTipName", data("No class")}, {"ButtonImage", thumbnail}}},
        kList);
    controller.readFavorites();
    ASSERT_EQ(ui.m_pageController->pageCount(), 3) << "one has no thumbnail and no button";
    press(button(0));
    EXPECT_TRUE(button(0)->isChecked());
    EXPECT_FALSE(controller.getCurrentFilter());
    press(button(1));
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(number("inputRadius"), 10) << "the filter's own";
    press(button(2));
    EXPECT_FALSE(button(2)->isChecked()) << "it has nothing to bring back";

    controller.saveFavorites();
    const auto stored = UserDefaults::standardUserDefaults().recordsForKey(kList);
    ASSERT_EQ(stored->size(), 4u);
    EXPECT_FALSE(stored->at(1).contains("ButtonImage"));
    EXPECT_EQ(KeyedArchive::unarchivedValue(stored->at(1).at("inputRadius").bytes()).toDouble(), 7);

    controller.readFavorites();
    EXPECT_EQ(ui.m_pageController->pageCount(), 3);
}

TEST_F(FavouritesTest, AreWrittenSoonAndWhenTheWindowCloses)
{
    const auto stored = [] {
        return UserDefaults::standardUserDefaults().recordsForKey(kList).value_or(StoredRecords()).size();
    };
    addFavourite("CIColorInvert");
    EXPECT_TRUE(QTest::qWaitFor([&] { return stored() == 1; }));
    addFavourite("CIGaussianBlur");
    controller.windowWillClose();
    EXPECT_EQ(stored(), 2u);
    const StoredRecord blur = UserDefaults::standardUserDefaults().recordsForKey(kList)->at(1);
    EXPECT_FALSE(blur.contains("inputImage")) << "it is always drawn with the present picture";
    EXPECT_TRUE(blur.contains("inputRadius"));
}

TEST_F(FavouritesTest, AreNamedMovedReplacedAndRemovedByTheirMenu)
{
    addFavourite("CIGaussianBlur", "inputRadius", 3.5);
    addFavourite("CIColorInvert");
    const auto choose = [&](int index, const QString& text) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 20), button(index)->mapToGlobal(QPoint(5, 20)));
        QCoreApplication::sendEvent(button(index), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction* item : menu->actions())
            if (item->text().remove('&') == text) {
                EXPECT_TRUE(item->isEnabled()) << text.toStdString();
                item->trigger();
            }
        menu->close();
        QCoreApplication::processEvents();
    };
    choose(0, "Rename…");
    auto* dialog = window.findChild<QInputDialog*>();
    ASSERT_TRUE(dialog);
    dialog->setTextValue("Soft");
    dialog->accept();
    EXPECT_EQ(button(0)->toolTip(), "Soft");
    EXPECT_EQ(button(0)->accessibleName(), "Soft");
    choose(0, "Move Right");
    EXPECT_EQ(button(1)->toolTip(), "Soft");
    press(button(1));
    controller.setFilterValueForKey(*controller.getCurrentFilter(), 8.0, "inputRadius");
    choose(1, "Replace by Present Values");
    closeAndReadAgain();
    ASSERT_EQ(ui.m_pageController->pageCount(), 2);
    EXPECT_EQ(button(1)->toolTip(), "Soft") << "in its new place, under its new name";
    press(button(1));
    EXPECT_EQ(number("inputRadius"), 8.0);
    choose(0, "Remove");
    EXPECT_EQ(ui.m_pageController->pageCount(), 1);
}

TEST_F(FavouritesTest, MakeTheSamePictureFromTheCommandLine)
{
    const QString data = QFileInfo(UserDefaults::standardUserDefaults().file()).absolutePath();
    QFile::link(data, data + "/lumivex"); // where the other program looks
    QImage source(90, 70, QImage::Format_RGB32);
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x)
            source.setPixel(x, y, qRgb(2 * x, 3 * y, x * y % 256));
    const QString path = folder.filePath("source.png");
    ASSERT_TRUE(source.save(path));
    const std::pair<const char*, CIValue> favourites[] = {{"CIGaussianBlur", 3.5}, {"CICheckerboardGenerator", 12},
        {"CIColorMap", {}}, {"CIGlassDistortion", {}}, {"CITwirlDistortion", 40}};
    for (const auto& [filter, value] : favourites)
        addFavourite(filter,
            value.isNothing()                                     ? ""
                : QByteArray(filter) == "CICheckerboardGenerator" ? "inputWidth"
                                                                  : "inputRadius",
            value);
    controller.saveFavorites();
    openPicture(path);
    for (int i = 0; i < int(std::size(favourites)); ++i) {
        SCOPED_TRACE(favourites[i].first);
        press(button(i));
        const CIBitmap shown = controller.createObjectImage();
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", data);
        environment.remove("DISPLAY");
        program.setProcessEnvironment(environment);
        program.start(LUMIVEX_RENDER, {"--favourite", button(i)->toolTip(), path, "-o", folder.filePath("out")});
        ASSERT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
        const Result<CIBitmap> written = readPicture(folder.filePath("out/source.png").toStdString());
        ASSERT_TRUE(written) << written.message();
        ASSERT_EQ(written->width(), shown.width());
        ASSERT_EQ(written->height(), shown.height());
        for (int y = 0; y < shown.height(); ++y)
            ASSERT_TRUE(std::equal(shown.row(y), shown.row(y) + 4 * shown.width(), written->row(y))) << "row " << y;
    }
}

} // namespace
