#include "files/ImageInfo.h"

#include "platform/imageio/PictureWriter.h"
#include "tests/support/QuietLog.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

namespace {

class ImageInfoTest : public testing::Test {
protected:
    const QuietLog quiet;

    QUrl written(const char* name, PictureFormat format)
    {
        const QString path = folder.filePath(name);
        CIBitmap bitmap(12, 8);
        EXPECT_TRUE(writePicture(bitmap, path.toStdString(), {.format = format}));
        return QUrl::fromLocalFile(path);
    }
    QString text(const char* field) const { return panel.findChild<QLabel*>(field)->text(); }

    bool comesToSay(const char* field, const QString& said)
    {
        return QTest::qWaitFor([&] { return text(field) == said; }, 20'000);
    }

    QTemporaryDir folder;
    ImageInfo panel{nullptr};
    QTreeWidget* tree = panel.findChild<QTreeWidget*>("mOView");
};

TEST_F(ImageInfoTest, ShowsAFileWithAllGroupsOpen)
{
    const QUrl url = written("a.png", PictureFormat::Png);
    ImageInfo::setMyURL(url);
    EXPECT_EQ(text("mFilePath"), "n/a") << "after what is going on now";
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree->topLevelItemCount() > 0; }, 20'000));
    EXPECT_EQ(text("mFilePath"), url.toLocalFile());
    EXPECT_EQ(text("mFileType"), "PNG Image");
    EXPECT_EQ(text("mFileSize"), QString("%1 bytes").arg(QFile(url.toLocalFile()).size()));
    const QList<QTreeWidgetItem*> width = tree->findItems("Pixel Width", Qt::MatchExactly);
    ASSERT_EQ(width.size(), 1);
    EXPECT_EQ(width.first()->text(1), "12");
    const QList<QTreeWidgetItem*> png = tree->findItems("PNG", Qt::MatchExactly);
    ASSERT_EQ(png.size(), 1);
    EXPECT_TRUE(png.first()->isExpanded());
    EXPECT_GT(png.first()->childCount(), 0);
    tree->setCurrentItem(png.first());
    EXPECT_TRUE(tree->selectedItems().isEmpty());
}

TEST_F(ImageInfoTest, SaysNothingOfWhatIsNoPicture)
{
    const QUrl picture = written("a.webp", PictureFormat::WebP);
    panel.showURL(picture);
    EXPECT_TRUE(comesToSay("mFileType", "WebP Image"));
    ASSERT_TRUE(QFile::remove(picture.toLocalFile()));
    panel.showURL(picture);
    EXPECT_EQ(text("mFileType"), "WebP Image") << "the same file again is no news";
    panel.showURL(QUrl::fromLocalFile(folder.filePath("none.png")));
    EXPECT_TRUE(comesToSay("mFilePath", folder.filePath("none.png")));
    EXPECT_EQ(text("mFileType"), "n/a");
    EXPECT_EQ(text("mFileSize"), "n/a");
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    panel.showURL(written("a.jp2", PictureFormat::Jpeg2000));
    EXPECT_TRUE(comesToSay("mFileType", "public.jpeg-2000")) << "not among the labels";
    panel.showURL(written("a.jp2", PictureFormat::Png));
    EXPECT_TRUE(comesToSay("mFileType", "PNG Image")) << "another file has taken the name";
    panel.showURL({});
    EXPECT_EQ(text("mFilePath"), "n/a");
    EXPECT_EQ(tree->topLevelItemCount(), 0);
}

TEST(PropertyLabels, AreWords)
{
    const std::pair<const char*, const char*> labels[] = {{"PixelWidth", "Pixel Width"}, {"DPIWidth", "DPI Width"},
        {"{Exif}", "Exif"}, {"FNumber", "F Number"}, {"ISOSpeedRatings", "ISO Speed Ratings"}, {"gamma", "Gamma"},
        {"dc:creator", "dc:creator"}, {"0x1234", "0x1234"}, {"sRGBIntent", "sRGB Intent"}, {"", ""}};
    for (const auto& [key, label] : labels)
        EXPECT_EQ(ImageInfo::label(key), label);
}

} // namespace
