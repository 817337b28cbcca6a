#include "tests/imageio/PictureSamples.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"
#include "tests/support/NestedDocument.h"

#include <algorithm>
#include <chrono>
#include <functional>

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// Silences the log while a few thousand broken files are read.
class HostileFiles : public ::testing::Test {
protected:
    HostileFiles()
    {
        setImageLog([this](std::string_view line) { lastLine = line; });
    }
    ~HostileFiles() override { setImageLog({}); }

    std::string lastLine;
};

/// What comes out of a broken file may be anything, as long as it is a whole bitmap or a message.
void expectSound(const Result<CIBitmap>& result)
{
    if (result)
        EXPECT_FALSE(result->isNull());
    else
        EXPECT_FALSE(result.message().empty());
}

TEST_F(HostileFiles, TruncatedFilesAreRefused)
{
    for (const PictureSample& sample : pictureSamples()) {
        ASSERT_TRUE(readPicture(sample.bytes)) << sample.name;
        for (int part = 0; part < 40; ++part) {
            const std::size_t size = sample.bytes.size() * std::size_t(part) / 40;
            SCOPED_TRACE(
                sample.name + " cut to " + std::to_string(size) + " of " + std::to_string(sample.bytes.size()));
            const Result<CIBitmap> result = readPicture(std::span(sample.bytes).first(size));
            expectSound(result);
            EXPECT_FALSE(sample.mustBeWhole && part <= 20 && result);
        }
    }
    const Bytes jpeg = *encodePicture(noiseBitmap(200, 200), {.format = PictureFormat::Jpeg});
    EXPECT_FALSE(readPicture(std::span(jpeg).first(jpeg.size() * 9 / 10)));
    EXPECT_THAT(lastLine, HasSubstr("damaged or incomplete"));
}

long peakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

Bytes patched(Bytes file, std::size_t at, std::initializer_list<int> values)
{
    std::ranges::copy(bytesOf(values), file.begin() + std::ptrdiff_t(at));
    return file;
}

std::size_t offsetOf(const Bytes& file, const Bytes& part)
{
    return std::size_t(std::ranges::search(file, part).begin() - file.begin());
}

TEST_F(HostileFiles, HugeClaimsCostNoMemory)
{
    const Bytes jpeg = *encodePicture(noiseBitmap(16, 16), {.format = PictureFormat::Jpeg});
    const std::size_t sizes = offsetOf(jpeg, bytesOf({0xff, 0xc0})) + 5;
    const std::pair<const char*, Bytes> bombs[] = {
        {"png", pngFile(30000, 30000, 8, 6, bytesOf({1, 2, 3}))},
        {"png under the limit", pngFile(20000, 20000, 8, 6, bytesOf({1, 2, 3}))},
        {"png with endless sides", pngFile(0x7fffffff, 0x7fffffff, 8, 6, bytesOf({1, 2, 3}))},
        {"tiff", tiffFile(60000, 60000, 3, 8, 2, bytesOf({1, 2, 3}))},
        {"tiff of a thousand bands", tiffFile(20000, 20000, 1000, 8, 2, bytesOf({1, 2, 3}))},
        {"jpeg", patched(jpeg, sizes, {0xff, 0xdc, 0xff, 0xdc})},
        {"jpeg under the limit", patched(jpeg, sizes, {0x4e, 0x20, 0x4e, 0x20})},
        {"gif", patched(patched(gifFile(), 6, {255, 255, 255, 255}), 32, {255, 255, 255, 255})},
        {"bmp", patched(bmpFile(), 18, {0, 0, 1, 0, 0, 0, 1, 0})},
        {"sgi", patched(sgiFile(), 6, {255, 255, 255, 255})},
        {"psd", patched(psdFile(), 14, {0, 0, 0x75, 0x30, 0, 0, 0x75, 0x30})},
        {"exr", patched(exrFile(), offsetOf(exrFile(), bytesOf("box2i")) + 18, {0, 0, 1, 0, 0, 0, 1, 0})},
    };
    const long before = peakMegabytes();
    for (const auto& [name, file] : bombs) {
        expectSound(readPicture(file));
        EXPECT_FALSE(readPicture(file)) << name;
    }
    EXPECT_LT(peakMegabytes() - before, 400) << "though what other tests gave back may still be held";

    const Result<CIBitmap> large = readPicture(pngFile(30000, 30000, 8, 6, bytesOf({1, 2, 3})));
    EXPECT_THAT(large.message(), HasSubstr("30000 × 30000"));
    EXPECT_FALSE(readPicture(pngFile(3, 2, 8, 0, bytesOf({1, 2, 3, 4, 5, 6})), {.maxPixels = 5}));
    EXPECT_TRUE(readPicture(pngFile(3, 2, 8, 0, bytesOf({1, 2, 3, 4, 5, 6})), {.maxPixels = 6}));
    EXPECT_TRUE(readPicture(pngFile(3, 2, 8, 0, bytesOf({1, 2, 3, 4, 5, 6})), {.maxBytes = 24}));
    for (const Bytes& file : {pngFile(3, 2, 8, 0, bytesOf({1, 2, 3, 4, 5, 6})), rawFile()})
        EXPECT_THAT(readPicture(file, {.maxBytes = 23}).message(), HasSubstr("not enough memory"));
}

TEST_F(HostileFiles, DrawingsCantRunAway)
{
    std::string laughs = "<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY a0 'ha'>";
    for (int i = 1; i < 12; ++i) {
        laughs += "<!ENTITY a" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j)
            laughs += "&a" + std::to_string(i - 1) + ";";
        laughs += "'>";
    }
    laughs += "]><svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><text>&a11;</text></svg>";
    expectSound(readPicture(bytesOf(laughs)));
    const Result<CIBitmap> wide =
        readPicture(bytesOf("<svg xmlns='http://www.w3.org/2000/svg' width='1000000000' height='3'></svg>"));
    EXPECT_TRUE(!wide || wide->width() < 8400);
    EXPECT_FALSE(readPicture(bytesOf("<svg xmlns='http://www.w3.org/2000/svg' width='0' height='0'></svg>")));
}

TEST_F(HostileFiles, EndlessDrawingsAreLeftToThemselves)
{
    EXPECT_TRUE(readPicture(bytesOf(nestedDocument(2))));
    const Result<CIBitmap> endless = readPicture(bytesOf(nestedDocument(12)), {.timeLimit = std::chrono::seconds(1)});
    EXPECT_EQ(endless.message(), "Opening the picture took too long.");
    const std::atomic<bool> isCancelled = true;
    EXPECT_THAT(readPicture(bytesOf(nestedDocument(12)), {.cancelled = &isCancelled}).message(), HasSubstr("given up"));
    EXPECT_TRUE(readPicture(bytesOf(nestedDocument(2)))) << "others go on";
}

TEST_F(HostileFiles, WhatIsNoPictureIsToldFromABrokenOne)
{
    const TemporaryFolder folder;
    const auto messageFor = [](const std::filesystem::path& path) {
        const Result<CIBitmap> result = readPicture(path);
        EXPECT_FALSE(result);
        EXPECT_EQ(readPictureInfo(path).message(), result.message());
        return result.message();
    };
    EXPECT_EQ(messageFor(folder.path() / "none.png"), "There is no file “none.png”.");
    EXPECT_THAT(messageFor(folder.path()), HasSubstr("is a folder"));
    EXPECT_EQ(messageFor(folder.write("empty.png", {})), "“empty.png” is empty.");
    EXPECT_THAT(messageFor(folder.write("text.jpg", bytesOf("Dear reader, this is a letter."))),
        HasSubstr("not a picture of a kind"));
    EXPECT_THAT(messageFor(folder.write("short.png", bytesOf("\x89PNG"))), HasSubstr("not a picture of a kind"));
    ASSERT_EQ(mkfifo((folder.path() / "pipe.png").c_str(), 0600), 0);
    EXPECT_THAT(messageFor(folder.path() / "pipe.png"), HasSubstr("not an ordinary file"));
    const std::string script =
        "push graphic-context\nimage over 0,0 0,0 'https://localhost/x.png'\npop graphic-context\n";
    EXPECT_THAT(messageFor(folder.write("script.png", bytesOf(script))), HasSubstr("not a picture of a kind"));

    EXPECT_TRUE(readPicture(folder.write("png.jpg", pngFile(1, 1, 8, 0, bytesOf({1})))));
    EXPECT_FALSE(readPicture(std::span<const std::byte>()));
}

} // namespace
