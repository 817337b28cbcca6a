#include "app/catalogue/Thumbnail.h"
#include "platform/coreimage/CIBitmap.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"

#include <gtest/gtest.h>

namespace {

CIImage halves(int width, int height) // red on the left, blue on the right
{
    CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            bitmap.mutableRow<std::uint32_t>(y)[std::size_t(x)] = x < width / 2 ? 0xff0000ff : 0xffff0000;
    return CIImage::fromBitmap(bitmap);
}

TEST(Thumbnail, StretchesTheWholeImageOver40By25Points)
{
    for (const CIImage& image : {halves(3000, 10), halves(40, 2000), halves(6, 4)}) {
        const QImage thumbnail = favouriteThumbnail(image);
        EXPECT_EQ(thumbnail.deviceIndependentSize(), QSizeF(40, 25));
        EXPECT_GT(thumbnail.pixelColor(2, 25).red(), 240);
        EXPECT_GT(thumbnail.pixelColor(77, 2).blue(), 240);
    }
    EXPECT_TRUE(favouriteThumbnail(CIImage()).isNull());
    EXPECT_TRUE(favouriteThumbnail(CIImage::fromColor({1, 0, 0, 1})).isNull());
}

TEST(Thumbnail, IsTiffForOthersAndReadsTheTiffOfOthers)
{
    QImage thumbnail(80, 50, QImage::Format_RGBA8888);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 80; ++x)
            thumbnail.setPixelColor(x, y, QColor(x * 3, y * 5, 200 - x, 55 + x + y));
    const QByteArray tiff = tiffOfThumbnail(thumbnail);
    const Result<CIBitmap> read = readPicture(std::as_bytes(std::span(tiff.data(), std::size_t(tiff.size()))));
    ASSERT_TRUE(read) << read.message();
    EXPECT_EQ(read->alpha(), CIAlpha::Straight);
    for (int y = 0; y < 50; ++y)
        EXPECT_EQ(std::memcmp(read->row(y), thumbnail.constScanLine(y), 80 * 4), 0) << y;

    QImage back = thumbnailOfTiff(tiff);
    EXPECT_EQ(back.deviceIndependentSize(), QSizeF(40, 25));
    EXPECT_EQ(back.convertToFormat(QImage::Format_RGBA8888), thumbnail);
    CIBitmap bitmap(8, 5, CIFormat::RGBA8, CIAlpha::Opaque);
    const auto others = encodePicture(bitmap, {.format = PictureFormat::Tiff});
    ASSERT_TRUE(others) << others.message();
    const auto* bytes = reinterpret_cast<const char*>(others->data());
    EXPECT_EQ(thumbnailOfTiff(QByteArray(bytes, qsizetype(others->size()))).size(), QSize(8, 5));
    for (qsizetype size : {qsizetype(0), qsizetype(3), qsizetype(100), tiff.size() / 2})
        EXPECT_TRUE(thumbnailOfTiff(tiff.left(size)).isNull()) << size;
}

} // namespace
