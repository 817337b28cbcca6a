#include "WindowFixture.h"

#include "app/catalogue/CataloguePictures.h"
#include "app/catalogue/OutlineView.h"
#include "app/catalogue/Thumbnail.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QColor kPictureColor(200, 100, 50); // of pictureFile

class CataloguePicturesTest : public WindowTest {
protected:
    ~CataloguePicturesTest() override
    {
        UserDefaults::standardUserDefaults().removeObjectForKey(QStringLiteral("FilterThumbnails"));
    }

    static QColor invertedColor()
    {
        const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName("CIColorInvert");
        filter->setValueForKey(
            CIImage::fromColor(CIColor(kPictureColor.redF(), kPictureColor.greenF(), kPictureColor.blueF()))
                .cropped({0, 0, 80, 50}),
            "inputImage");
        return favouriteThumbnail(filter->outputImage()).pixelColor(40, 25);
    }
    /// The list's pixel in the middle of the filter's thumbnail.
    QColor shown(const QString& className)
    {
        ui.searchField->setText(className);
        const QRect cell = ui.listView->visualRect(rowOf(className));
        const QImage image = ui.listView->viewport()->grab().toImage();
        return image.pixelColor(
            QPoint(cell.left() + kFavouriteThumbnail.width() / 2, cell.center().y()) * image.devicePixelRatio());
    }
};

TEST_F(CataloguePicturesTest, ShowWhatAFilterMakesOfTheOpenPicture)
{
    openPicture(pictureFile("plain.png", 120, 80));
    const int with = ui.listView->visualRect(ui.listView->model()->index(0, 0)).height();
    const QColor inverted = invertedColor();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown("CIColorInvert") == inverted; }, 10000));

    const auto isLit = [&] { return shown("CIExposureAdjust").green() > kPictureColor.green() + 10; };
    EXPECT_TRUE(QTest::qWaitFor(isLit, 10000)) << "0 EV would show nothing";

    openPicture(pictureFile("other.png", 60, 90));
    perform(&Controller::rotateLeft);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown("CIColorInvert") == inverted; }, 10000)) << "made anew";

    action("actionThumbnails")->trigger();
    EXPECT_LT(ui.listView->visualRect(ui.listView->model()->index(0, 0)).height(), with);
    EXPECT_NE(shown("CIColorInvert"), inverted);
    EXPECT_FALSE(UserDefaults::standardUserDefaults().objectForKey(QStringLiteral("FilterThumbnails")).toBool());
}

TEST(CataloguePictures, AreMadeForTheLatestPictureOnly)
{
    const auto plain = [](double grey) {
        return CIImage::fromColor(CIColor(grey, grey, grey)).cropped({0, 0, 80, 50});
    };
    int askedForNothing = 0;
    CataloguePictures pictures([&](const QString& name, const CIImage& picture) {
        const bool isNothing = name == QStringLiteral("nothing");
        askedForNothing += isNothing;
        return isNothing ? CIImage() : picture;
    });
    const auto isMade = [&](const char* name) {
        return QTest::qWaitFor([&] { return !pictures.pictureFor(QLatin1String(name)).isNull(); }, 10000);
    };
    QSignalSpy ready(&pictures, &CataloguePictures::pictureReady);
    EXPECT_TRUE(pictures.pictureFor("any").isNull());
    pictures.setPicture(plain(0));
    EXPECT_TRUE(pictures.pictureFor("any").isNull());
    pictures.setPicture(plain(1)); // while the first may be in work
    EXPECT_TRUE(isMade("any"));
    const QImage made = pictures.pictureFor("any");
    EXPECT_EQ(made.size(), CataloguePictures::kSize * 2);
    EXPECT_EQ(made.pixelColor(40, 25), QColor(Qt::white));

    pictures.pictureFor("nothing");
    EXPECT_TRUE(QTest::qWaitFor([&] { return askedForNothing == 1; }, 10000));
    EXPECT_TRUE(isMade("later"));
    pictures.pictureFor("nothing");
    EXPECT_TRUE(isMade("latest"));
    EXPECT_EQ(askedForNothing, 1) << "what shows nothing is asked for once";
}

} // namespace
