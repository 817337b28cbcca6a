#include "files/ImageDestination.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureReader.h"
#include "tests/support/Programs.h"
#include "tests/support/QuietLog.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtEndian>

#include <csignal>
#include <sys/resource.h>

namespace {

CIBitmap colored(int width, int height)
{
    CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < height; ++y) {
        auto row = bitmap.mutableRow<std::uint8_t>(y);
        for (int x = 0; x < width; ++x) {
            row[std::size_t(4 * x)] = std::uint8_t(x * 7);
            row[std::size_t(4 * x + 1)] = std::uint8_t(y * 11);
            row[std::size_t(4 * x + 2)] = std::uint8_t(x ^ y);
            row[std::size_t(4 * x + 3)] = 255;
        }
    }
    return bitmap;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

class ImageDestinationTest : public testing::Test {
protected:
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    QTemporaryDir folder;
};

TEST_F(ImageDestinationTest, PdfHasOnePageOfThePicturesSizeAndAllItsDetail)
{
    const CIBitmap picture = colored(83, 61);
    ASSERT_TRUE(writePdf(picture, path("p.pdf")));
    const QString info = outputOf("pdfinfo", {path("p.pdf")});
    EXPECT_TRUE(info.contains(QRegularExpression("Pages:\\s+1\n"))) << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression("Page size:\\s+83 x 61 pts"))) << info.toStdString();

    ASSERT_FALSE(outputOf("pdfimages", {"-list", path("p.pdf")}).isEmpty());
    outputOf("pdfimages", {"-png", path("p.pdf"), path("p")});
    const Result<CIBitmap> back = readPicture(path("p-000.png").toStdString());
    ASSERT_TRUE(back) << back.message();
    for (int y = 0; y < 61; ++y)
        EXPECT_EQ(std::memcmp(back->row(y), picture.row(y), 83 * 4), 0) << "row " << y;
}

TEST_F(ImageDestinationTest, PdfPagesAreOfNoPaperSize)
{
    ASSERT_TRUE(writePdf(colored(597, 843), path("p.pdf")));
    const QString info = outputOf("pdfinfo", {path("p.pdf")});
    EXPECT_TRUE(info.contains(QRegularExpression("Page size:\\s+597 x 843 pts"))) << "nearly that of A4";
}

TEST_F(ImageDestinationTest, StoresTheResolution)
{
    ASSERT_TRUE(export1PathTypeDpi(colored(40, 30), path("p.png"), "public.png", 150));
    const QStringList parts =
        outputOf("identify", {"-units", "PixelsPerInch", "-format", "%m %w %h %x", path("p.png")}).split(' ');
    ASSERT_EQ(parts.size(), 4);
    EXPECT_EQ(parts.mid(0, 3), QStringList({"PNG", "40", "30"}));
    EXPECT_NEAR(parts[3].toDouble(), 150, 0.1);
    EXPECT_FALSE(export1PathTypeDpi(colored(4, 3), path("p.xyz"), "public.unknown", 72));
    EXPECT_FALSE(QFile::exists(path("p.xyz")));
    const QuietLog quiet;
    EXPECT_FALSE(export1PathTypeDpi(colored(4, 3), path("no folder/p.png"), "public.png", 72));
}

TEST_F(ImageDestinationTest, IconsHoldTheLargestSquareWithThePictureInTheMiddle)
{
    ASSERT_TRUE(export1PathTypeDpi(colored(600, 550), path("i.icns"), "com.apple.icns", 72));
    const QByteArray icns = bytesOf(path("i.icns"));
    EXPECT_EQ(icns.left(4), "icns");
    EXPECT_EQ(qFromBigEndian<quint32>(icns.data() + 4), quint32(icns.size()));
    EXPECT_EQ(icns.mid(8, 4), "ic09");
    const QByteArray png = icns.mid(16);
    const Result<CIBitmap> icon = readPicture(std::as_bytes(std::span(png.data(), std::size_t(png.size()))));
    ASSERT_TRUE(icon) << icon.message();
    EXPECT_EQ(icon->width(), 512);
    EXPECT_EQ(icon->height(), 512);
    EXPECT_EQ(icon->row<std::uint8_t>(0)[3], 0) << "above the picture";
    EXPECT_EQ(icon->row<std::uint8_t>(256)[3], 255);

    ASSERT_TRUE(export1PathTypeDpi(colored(600, 550), path("i.ico"), "com.microsoft.ico", 72));
    EXPECT_EQ(outputOf("identify", {"-format", "%w %h", "ico:" + path("i.ico")}), "256 256");

    ASSERT_TRUE(export1PathTypeDpi(colored(60, 50), path("small.icns"), "com.apple.icns", 72));
    const QByteArray old = bytesOf(path("small.icns"));
    EXPECT_EQ(old.mid(8, 4), "ih32");
    const auto planes = qFromBigEndian<quint32>(old.data() + 12);
    EXPECT_EQ(planes, 8u + 3 * (48 * 48 + 48 * 48 / 128)) << "runs of 128 bytes, each with its length before it";
    EXPECT_EQ(old.mid(8 + qsizetype(planes), 4), "h8mk");
}

TEST_F(ImageDestinationTest, AFullDiskLeavesTheOldFile)
{
    ASSERT_TRUE(export1PathTypeDpi(colored(8, 8), path("p.png"), "public.png", 72));
    ASSERT_TRUE(writePdf(colored(8, 8), path("p.pdf")));
    const QByteArray png = bytesOf(path("p.png")), pdf = bytesOf(path("p.pdf"));
    setImageLog([](std::string_view) {});
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit small{4000, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const bool pngWritten = export1PathTypeDpi(colored(400, 400), path("p.png"), "public.png", 72);
    const bool bmpWritten = export1PathTypeDpi(colored(400, 400), path("p.bmp"), "com.microsoft.bmp", 72);
    const bool pdfWritten = writePdf(colored(400, 400), path("p.pdf")).isOk();
    setrlimit(RLIMIT_FSIZE, &usual);
    setImageLog({});
    EXPECT_FALSE(pngWritten || bmpWritten || pdfWritten);
    EXPECT_EQ(bytesOf(path("p.png")), png);
    EXPECT_EQ(bytesOf(path("p.pdf")), pdf);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2) << "nothing half-written stays";
}

} // namespace
