// Files dropped on the picture view and on the image well.
#include "tests/controls/ImageViewFixture.h"

#include "controls/panel/DropImageView.h"
#include "widgets/DropFileTypes.h"

#include <QSignalSpy>

namespace {

using namespace input;

} // namespace

TEST(DropFileTypes, ArePicturesButNotPDF)
{
    for (const char* path : {"/a/b.jpg", "/a/IMG.JPG", "/a/b.tiff", "/x.y/b.8BPS", "/a/b.png", "/a/b.c.webp"})
        EXPECT_TRUE(isAcceptablePictureFile(path)) << path;
    for (const char* path :
        {"/a/b.pdf", "/a/b.PDF", "/a/b.Pdf", "/a/b.txt", "/a/png", "/a/b.8bps", "/a.png/b", "/a/b.jPg"})
        EXPECT_FALSE(isAcceptablePictureFile(path)) << path;
}

TEST(DropFileTypes, AreTheOnesThatTheOpenPanelOffers)
{
    const QStringList patterns = pictureFilePatterns().split(' ');
    EXPECT_TRUE(patterns.contains("*.cr2") && patterns.contains("*.JPG"));
    for (const QString& pattern : patterns) {
        const QString file = QString(pattern).replace('*', "/a/b");
        EXPECT_TRUE(isAcceptableEffectPicture(file)) << file.toStdString();
        EXPECT_EQ(isAcceptablePictureFile(file), !file.endsWith(".pdf", Qt::CaseInsensitive)) << file.toStdString();
    }
}

TEST_F(ImageViewTest, TakesExactlyOnePictureFile)
{
    EXPECT_TRUE(accepts(view, Files({"/p/one.png"})));
    EXPECT_FALSE(accepts(view, Files({"/p/one.png", "/p/two.png"})));
    EXPECT_FALSE(accepts(view, Files({"/p/one.pdf"})));
    EXPECT_FALSE(accepts(view, Files({"/p/one.png"}), {5, 5}, Qt::LinkAction));
    QMimeData text;
    text.setText("/p/one.png");
    EXPECT_FALSE(accepts(view, text));
}

TEST_F(ImageViewTest, ADroppedFileBecomesThePicture)
{
    master.picture = pattern(10, 10);
    drop(view, Files({"/p/one.png"}));
    drop(view, Files({"/p/bad.png"}));
    EXPECT_EQ(master.log, (std::vector<QString>{"dropped /p/one.png", "dropped /p/bad.png"}));
    master.log.clear();
    Files withPicture({"/p/one.png"});
    withPicture.setImageData(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_FALSE(accepts(view, withPicture)) << "what would do nothing isn't framed";
    drop(view, withPicture);
    EXPECT_TRUE(master.log.empty()) << "picture data and a file: not ours";
}

TEST_F(ImageViewTest, FramesTheWindowWhileAFileIsOverIt)
{
    const auto framed = [&] {
        const QImage image = window.grab().toImage();
        const QPoint onFrame = QPoint(10, 100) * window.devicePixelRatioF();
        return difference(image.pixelColor(onFrame), QColor(252, 240, 189)) < 30
            && difference(image.pixelColor(onFrame), image.pixelColor(2, 2)) > 10;
    };
    EXPECT_FALSE(framed());
    EXPECT_TRUE(accepts(view, Files({"/p/one.png"})));
    EXPECT_TRUE(framed());
    QDragLeaveEvent leave;
    QApplication::sendEvent(&view, &leave);
    EXPECT_FALSE(framed());
}

TEST(DropImageView, RemembersTheFirstDroppedFile)
{
    DropImageView well;
    QSignalSpy dropped(&well, &DropImageView::imageDropped);
    EXPECT_FALSE(accepts(well, QMimeData()));
    EXPECT_TRUE(accepts(well, Files({"/p/one.png", "/p/two.png"})));
    drop(well, Files({"/p/one.png", "/p/two.png"}));
    EXPECT_EQ(well.filePath(), "/p/one.png");
    EXPECT_EQ(dropped.count(), 1);
    well.setFilePath1("/q.png");
    EXPECT_EQ(well.filePath(), "/q.png");
    EXPECT_EQ(well.draggingSourceOperationMaskForLocal(true), Qt::CopyAction);
}

TEST(DropImageView, ShowsThePictureScaledDownOnly)
{
    DropImageView well;
    well.resize(48, 44);
    const auto colorAt = [&](int x, int y) {
        const QImage image = well.grab().toImage();
        return image.pixelColor(QPoint(x, y) * image.devicePixelRatio());
    };
    QImage red(400, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    well.setImage(red);
    EXPECT_EQ(colorAt(6, 22), QColor(Qt::red)) << "as wide as the well";
    EXPECT_NE(colorAt(24, 10), QColor(Qt::red)) << "with its proportions kept";
    well.setImage(red.copy(0, 0, 8, 8));
    EXPECT_EQ(colorAt(24, 22), QColor(Qt::red));
    EXPECT_NE(colorAt(12, 22), QColor(Qt::red)) << "a small one isn't magnified";
}
