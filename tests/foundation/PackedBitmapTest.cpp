#include "platform/foundation/PackedBitmap.h"

#include "platform/coreimage/CIColorProfile.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include <gtest/gtest.h>
#include <QBuffer>

namespace {

constexpr std::int64_t kAnySize = std::numeric_limits<std::int64_t>::max();

QByteArray packed(const CIBitmap& bitmap)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(packBitmap(bitmap, buffer));
    return buffer.data();
}

CIBitmap unpacked(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return unpackBitmap(buffer, kAnySize);
}

TEST(PackedBitmap, TakesPicturesOfOneColorBack)
{
    // Nothing packs better: what is refused as too good to be true must be better still.
    for (const auto& [width, height, format] : {std::tuple(6000, 4000, CIFormat::RGBAf), {1, 1, CIFormat::RGBA8},
             {1, 70'000, CIFormat::RGBA8}, {200'000, 1, CIFormat::RGBA16}}) {
        const CIBitmap back = unpacked(packed(CIBitmap(width, height, format)));
        ASSERT_FALSE(back.isNull()) << width;
        EXPECT_EQ(back.width(), width);
        EXPECT_EQ(back.height(), height);
        EXPECT_EQ(back.format(), format);
    }
}

TEST(PackedBitmap, KeepsTheColorsOfAProfile)
{
    CIColorProfile profile{.name = "wide", .light = {}, .toLinearSRGB = {2, 0, 0, 0, 2, 0, 0, 0, 2}, .icc = {}};
    for (int code = 0; code < 65536; ++code)
        profile.light.push_back(float(code) / 65535);
    const CIColorSpace space = colorSpaceOf(std::move(profile));
    const QByteArray bytes = packed(CIBitmap(6, 4, CIFormat::RGBA16, CIAlpha::Straight, space));
    EXPECT_EQ(unpacked(bytes).colorSpace(), space);
    for (const int size : {24, 30, 2000, 200'000})
        EXPECT_TRUE(unpacked(bytes.left(size)).isNull()) << size;
}

TEST(PackedBitmap, BelievesNoSize)
{
    const QByteArray sound = packed(CIBitmap(6, 4, CIFormat::RGBA8));
    constexpr qint32 kLargest = std::numeric_limits<qint32>::max();
    for (const auto& [width, height] : {std::pair<qint32, qint32>(6, 5), {7, 4}, {6, 64'000}, {kLargest, 1},
             {1, kLargest}, {kLargest, kLargest}, {0, 4}, {-6, 4}}) {
        QByteArray claiming = sound;
        std::memcpy(claiming.data() + 4, &width, sizeof width); // after the mark of the kind
        std::memcpy(claiming.data() + 8, &height, sizeof height);
        EXPECT_TRUE(unpacked(claiming).isNull()) << width << " x " << height;
    }
}

} // namespace
