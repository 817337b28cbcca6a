// Undo steps that hold pictures.
#include "WindowFixture.h"

#include "platform/chain/Baking.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::int64_t kMegabyte = 1 << 20;

std::int64_t residentMemory()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE)
                                          : 0;
}

/// Bands that tell each edit from every other, with transparent rows that still have a color.
CIBitmap edited(int width, int height, int edit)
{
    CIBitmap bitmap(width, height);
    for (int y = 0; y < height; ++y) {
        const std::uint32_t color = std::uint32_t(y * 40503 + edit * 77) & 0xFFFFFF;
        std::vector<std::uint32_t> row(std::size_t(width), color | (y & 1 ? 0xFF000000 : 0));
        std::memcpy(bitmap.mutableRow(y), row.data(), row.size() * sizeof(std::uint32_t));
    }
    return bitmap;
}

bool areEqual(const CIBitmap& a, const CIBitmap& b)
{
    if (a.width() != b.width() || a.height() != b.height() || a.format() != b.format() || a.alpha() != b.alpha())
        return false;
    for (int y = 0; y < a.height(); ++y)
        if (std::memcmp(a.row(y), b.row(y), std::size_t(a.width()) * bytesPerPixel(a.format())) != 0)
            return false;
    return true;
}

TEST(PictureHistory, MovesTheOldestToTheDiskAndLosesNothing)
{
    const QTemporaryDir folder;
    const CIBitmap first = edited(300, 200, 0), second = edited(300, 200, 1);
    PictureHistory history(folder.filePath("made when needed"), 300 * 200 * 4);
    std::shared_ptr<KeptPicture> older = history.keep(CIImage::fromBitmap(first));
    const CIImage alive = CIImage::fromBitmap(second);
    const std::shared_ptr<KeptPicture> newer = history.keep(alive);
    EXPECT_EQ(history.bytesInMemory(), 300 * 200 * 4);
    EXPECT_TRUE(older->isOnDisk());
    EXPECT_FALSE(newer->isOnDisk());
    EXPECT_TRUE(newer->image().isSameAs(alive));
    const CIImage back = older->image();
    EXPECT_TRUE(areEqual(*bitmapOf(back), first));
    EXPECT_FALSE(older->isOnDisk());
    older.reset();
    EXPECT_EQ(QDir(folder.filePath("made when needed")).entryList(QDir::Files | QDir::Hidden).size(), 0);
}

TEST(PictureHistory, StaysInMemoryWhereTheDiskIsFull)
{
    PictureHistory history("/proc/no such folder", 1);
    const CIBitmap first = edited(30, 20, 0);
    const std::shared_ptr<KeptPicture> kept = history.keep(CIImage::fromBitmap(first));
    EXPECT_EQ(history.bytesInMemory(), 30 * 20 * 4);
    EXPECT_TRUE(areEqual(*bitmapOf(kept->image()), first));
}

class HistoryTest : public WindowTest { };

TEST_F(HistoryTest, FiftyLargeEditsStayWithinTheBudgetAndAllUndo)
{
    constexpr int edits = 50, width = 6000, height = 4000;
    constexpr std::int64_t budget = 300 * kMegabyte, onePicture = std::int64_t(width) * height * 4;
    controller.document().history().setBudget(budget);
    controller.undoPaste(CIImage::fromBitmap(edited(width, height, 0)));
    std::int64_t most = 0;
    for (int edit = 1; edit <= edits; ++edit) {
        controller.undoPaste(CIImage::fromBitmap(edited(width, height, edit)));
        most = std::max(most, residentMemory());
        EXPECT_LE(controller.document().history().bytesInMemory(), budget);
    }
    // The picture itself, its reduced copies, one that is on its way to the disk, and the program.
    EXPECT_LT(most, budget + 5 * onePicture + 300 * kMegabyte) << most / kMegabyte << " MB";
    for (int edit = edits - 1; edit >= 0; --edit) {
        perform(&Controller::undo);
        ASSERT_TRUE(areEqual(*bitmapOf(controller.backImage()), edited(width, height, edit))) << "edit " << edit;
    }
    for (int edit = 1; edit <= 5; ++edit)
        perform(&Controller::redo);
    EXPECT_TRUE(areEqual(*bitmapOf(controller.backImage()), edited(width, height, 5)));
}

TEST_F(HistoryTest, FiltersOfThePastHoldNoPictures)
{
    openPicture(pictureFile("a.png", 40, 30));
    pick("CIGaussianBlur");
    controller.setFilterValueForKey(*controller.getCurrentFilter(), 3.0, "inputRadius");
    const std::weak_ptr<CIFilter> blur = controller.getCurrentFilter();
    perform(&Controller::applyBtn);
    openPicture(pictureFile("b.png", 20, 10));
    perform(&Controller::rotateLeft);
    controller.undoPaste(controller.backImage());
    ASSERT_FALSE(blur.expired()) << "an undo step needs it";
    EXPECT_FALSE(blur.lock()->valueForKey("inputImage").isImage());
    while (undo.canUndo())
        perform(&Controller::undo);
    EXPECT_EQ(blur.lock()->valueForKey("inputRadius").toFloat(), 10) << "its other values still come and go";
}

} // namespace
