#include "platform/foundation/KeyedArchive.h"
#include "platform/coreimage/CIContext.h"

#include <gtest/gtest.h>
#include <QCborArray>
#include <QCborMap>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

CIValue roundTrip(const CIValue& value) { return KeyedArchive::unarchivedValue(KeyedArchive::archivedData(value)); }

CIBitmap noise(int width, int height, CIFormat format, CIAlpha alpha, CIColorSpace space = CIColorSpace::SRGB)
{
    CIBitmap bitmap(width, height, format, alpha, space);
    std::uint32_t random = 7;
    for (int y = 0; y < height; ++y) {
        const auto next = [&] { return random = random * 1664525u + 1013904223u; };
        if (format == CIFormat::RGBAf)
            for (float& v : bitmap.mutableRow<float>(y))
                v = float(next() >> 8) / 8e6f - 0.5f; // beyond 0 to 1, too
        else
            for (std::uint8_t& v : bitmap.mutableRow<std::uint8_t>(y))
                v = std::uint8_t(next() >> 24);
    }
    return bitmap;
}

/// What a render sees of an image, place included.
std::vector<float> light(const CIImage& image)
{
    const CIRect whole = image.extent().roundedOut();
    CIBitmap out(
        int(whole.width) + 4, int(whole.height) + 4, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
    CIContext().renderInto(out, int(whole.x) - 2, int(whole.top()) + 2, image);
    std::vector<float> all;
    for (int y = 0; y < out.height(); ++y) {
        const auto row = std::as_const(out).row<float>(y);
        all.insert(all.end(), row.begin(), row.end());
    }
    return all;
}

TEST(KeyedArchive, GivesEveryTypeBackUnchanged)
{
    const double tiny = std::numeric_limits<double>::denorm_min();
    const CIValue values[] = {
        CIValue(),
        true,
        false,
        0.1,
        -0.0,
        tiny,
        1e300,
        std::numeric_limits<double>::infinity(),
        "plain",
        "Größe ✓ \n\"quoted\"",
        "",
        CIVector{150, 0.1, -3, 4.5},
        CIVector(),
        CIColor(1.25, -0.5, 1 / 3.0, 0.5),
        CIAffineTransform{0.5, 1, -2, 3, 1e-9, 7},
        CIData{std::byte(0), std::byte(255), std::byte('\n')},
        CIData(),
        CIArray{1, "two", CIArray{CIVector{3}}, CIValue()},
        CIDictionary{{"image", "a string that is no image"}, {"vector", CIDictionary{}}, {"", CIColor(1, 1, 1, 1)}},
    };
    for (const CIValue& value : values) {
        SCOPED_TRACE(KeyedArchive::archivedData(value).toHex().toStdString());
        EXPECT_EQ(roundTrip(value), value);
    }
    EXPECT_TRUE(std::signbit(roundTrip(-0.0).toDouble()));
    EXPECT_TRUE(std::isnan(roundTrip(std::nan("")).toDouble()));
    EXPECT_TRUE(roundTrip(true).isBoolean()) << "not a number";
}

TEST(KeyedArchive, KeepsBitmapsAsTheyAreStored)
{
    for (CIFormat format : {CIFormat::RGBA8, CIFormat::BGRA8, CIFormat::RGBA16, CIFormat::RGBAf})
        for (CIAlpha alpha : {CIAlpha::Opaque, CIAlpha::Straight, CIAlpha::Premultiplied})
            for (CIColorSpace space : {CIColorSpace::SRGB, CIColorSpace::LinearSRGB}) {
                const CIImage image = CIImage::fromBitmap(noise(13, 7, format, alpha, space));
                const CIImage back = roundTrip(image).toImage();
                EXPECT_EQ(back.extent(), image.extent());
                EXPECT_EQ(light(back), light(image)) << int(format) << ' ' << int(alpha) << ' ' << int(space);
            }
}

TEST(KeyedArchive, KeepsImagesMadeOfOthersWithoutLossAndWhereTheyLie)
{
    const CIImage codes = CIImage::fromBitmap(noise(30, 70, CIFormat::RGBA8, CIAlpha::Straight));
    const CIImage turned = codes.transformed({0, 1, -1, 0, 5, -9});
    const CIImage smooth = codes.transformed(CIAffineTransform::rotation(0.3)).cropped({-12.5, 3.25, 20.5, 31});
    for (const CIImage& image : {turned, smooth, codes.cropped({3, 4, 5, 6})}) {
        const CIImage back = roundTrip(image).toImage();
        EXPECT_EQ(back.extent(), image.extent());
        EXPECT_EQ(light(back), light(image));
    }
    EXPECT_LT(KeyedArchive::archivedData(turned).size(), 30 * 70 * 4 + 300) << "codes stay codes";
    EXPECT_THROW(KeyedArchive::archivedData(CIImage::fromColor({1, 0, 0, 1})), ArchiveError);
}

TEST(KeyedArchive, FindsDamageWhereverItIs)
{
    const QByteArray whole = KeyedArchive::archivedData(CIDictionary{{"numbers", CIVector{1, 2}},
        {"picture", CIImage::fromBitmap(noise(3, 2, CIFormat::RGBA8, CIAlpha::Straight))}});
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_THROW(KeyedArchive::unarchivedValue(whole.left(size)), ArchiveError) << size;
    int refused = 0;
    std::srand(1);
    for (int i = 0; i < 3000; ++i) { // may go unnoticed within a number, but never goes wrong
        QByteArray damaged = whole;
        damaged[std::rand() % damaged.size()] = char(std::rand());
        try {
            KeyedArchive::unarchivedValue(damaged);
        } catch (const ArchiveError&) {
            ++refused;
        }
    }
    EXPECT_GT(refused, 500);
    EXPECT_THROW(KeyedArchive::unarchivedValue("\xf6"), ArchiveError) << "CBOR, but no archive";
}

TEST(KeyedArchive, ReadsThePlainPicturesOfFormerVersions)
{
    const CIBitmap bitmap = noise(3, 2, CIFormat::RGBA8, CIAlpha::Straight);
    QByteArray pixels;
    for (int y = 0; y < 2; ++y)
        pixels += QByteArray(reinterpret_cast<const char*>(bitmap.row(y)), 12);
    const QCborMap plain{{QLatin1String("width"), 3}, {QLatin1String("height"), 2}, {QLatin1String("format"), 0},
        {QLatin1String("alpha"), 1}, {QLatin1String("space"), 0},
        {QLatin1String("extent"), QCborArray{0.0, 0.0, 3.0, 2.0}}, {QLatin1String("pixels"), pixels}};
    QCborMap archive = QCborValue::fromCbor(KeyedArchive::archivedData(CIImage::fromBitmap(bitmap))).toMap();
    archive[QLatin1String("root")] = QCborMap{{QLatin1String("image"), plain}};
    const CIImage image = KeyedArchive::unarchivedValue(QCborValue(archive).toCbor()).toImage();
    EXPECT_EQ(light(image), light(CIImage::fromBitmap(bitmap)));
}

TEST(KeyedArchive, PutsPicturesOnlyWhereTheyCanBeDrawn)
{
    const CIImage picture = CIImage::fromBitmap(noise(3, 2, CIFormat::RGBA8, CIAlpha::Straight));
    QCborMap archive = QCborValue::fromCbor(KeyedArchive::archivedData(picture)).toMap();
    const QLatin1String rootKey("root"), imageKey("image"), extentKey("extent");
    const auto archiveAt = [&](double x, double y, double width, double height) {
        QCborMap image = archive[rootKey].toMap()[imageKey].toMap();
        image[extentKey] = QCborArray{x, y, width, height};
        QCborMap moved = archive;
        moved[rootKey] = QCborMap{{imageKey, image}};
        return QCborValue(moved).toCbor();
    };
    EXPECT_EQ(KeyedArchive::unarchivedValue(archiveAt(5, -6, 3, 2)).toImage().extent(), CIRect(5, -6, 3, 2));
    for (const double far : {1e34, -1e34, double(INFINITY), double(NAN)}) {
        EXPECT_THROW(KeyedArchive::unarchivedValue(archiveAt(far, 0, 3, 2)), ArchiveError) << far;
        EXPECT_THROW(KeyedArchive::unarchivedValue(archiveAt(0, 0, 3, far)), ArchiveError) << far;
    }
}

} // namespace
