#include "tests/imageio/PictureSamples.h"
#include "tests/support/QuietLog.h"

#include "platform/imageio/PictureWriter.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <chrono>
#include <csignal>
#include <cstring>
#include <fstream>
#include <thread>

#include <dirent.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using ::testing::AnyOf;
using ::testing::Each;
using ::testing::HasSubstr;

/// The readers that this process has started and that still run.
std::vector<pid_t> readers()
{
    std::vector<pid_t> found;
    for (const auto& entry : fs::directory_iterator("/proc")) {
        std::ifstream file(entry.path() / "stat");
        std::string number, name, state, parent;
        if (file >> number >> name >> state >> parent && parent == std::to_string(::getpid()) && state != "Z"
            && name.find("read") != name.npos)
            found.push_back(std::stoi(number));
    }
    return found;
}

std::string statusLine(pid_t process, const std::string& start)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(file, line);)
        if (line.starts_with(start))
            return line.substr(start.size());
    return {};
}

bool isWaiting(pid_t process)
{
    std::string call;
    std::ifstream("/proc/" + std::to_string(process) + "/wchan") >> call;
    return call.find("poll") != call.npos;
}

template <class Condition>
bool comesTrue(Condition condition)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition())
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return true;
}

void expectEqual(const Result<CIBitmap>& read, const Result<CIBitmap>& expected)
{
    ASSERT_EQ(read.message(), expected.message());
    if (!expected)
        return;
    ASSERT_EQ(read->width(), expected->width());
    ASSERT_EQ(read->height(), expected->height());
    ASSERT_EQ(read->format(), expected->format());
    EXPECT_EQ(read->alpha(), expected->alpha());
    EXPECT_EQ(read->colorSpace(), expected->colorSpace());
    for (int y = 0; y < read->height(); ++y)
        ASSERT_EQ(std::memcmp(read->row(y), expected->row(y), read->row<std::byte>(y).size()), 0) << "row " << y;
}

void expectEqual(const std::vector<PictureProperty>& read, const std::vector<PictureProperty>& expected)
{
    ASSERT_EQ(read.size(), expected.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read[i].key, expected[i].key);
        EXPECT_EQ(read[i].value, expected[i].value);
        expectEqual(read[i].children, expected[i].children);
    }
}

class Readers : public ::testing::Test {
protected:
    ~Readers() override { ReaderProcess::setProgram({}); }
    static Bytes order(const std::string& words) { return bytesOf("qoif order:" + words); }

    const QuietLog quiet;
    TemporaryFolder folder;
};

TEST_F(Readers, ReadAllThatIsReadHere)
{
    std::vector<std::pair<std::string, Bytes>> files;
    for (const PictureSample& sample : pictureSamples()) {
        files.emplace_back(sample.name, sample.bytes);
    }
    files.emplace_back("half a picture", Bytes(files[0].second.begin(), files[0].second.begin() + 3000));
    files.emplace_back("text", bytesOf("no picture at all"));
    files.emplace_back("svg with text and a picture",
        bytesOf("<svg xmlns='http://www.w3.org/2000/svg' width='99' height='30'><text y='20'>fill &#1078;</text>"
                "<filter id='b'><feGaussianBlur stdDeviation='2'/></filter><rect filter='url(#b)' width='9' "
                "height='9'/></svg>"));
    files.emplace_back(
        "deep", *encodePicture(noiseBitmap(300, 200, CIFormat::RGBA16), {.format = PictureFormat::Tiff}));
    files.emplace_back("large", *encodePicture(noiseBitmap(900, 700), {.format = PictureFormat::Jpeg}));
    for (const auto& [name, bytes] : files) {
        SCOPED_TRACE(name);
        ReaderProcess::prepare();
        ASSERT_TRUE(comesTrue([] { return !readers().empty() && isWaiting(readers().back()); }));
        const fs::path file = folder.write("picture", bytes);
        ReaderProcess reader(file);
        expectEqual(reader.readPicture(), readPicture(file));
        expectEqual(ReaderProcess(bytes).readPicture(), readPicture(bytes)); // by one that has just been started
        expectEqual(reader.readPicture({.maxSide = 20}), readPicture(file, {.maxSide = 20}));
        const auto properties = reader.readProperties(), expected = readPictureProperties(file);
        ASSERT_EQ(properties.message(), expected.message());
        if (!expected)
            continue;
        EXPECT_EQ(properties->typeIdentifier, expected->typeIdentifier);
        EXPECT_EQ(properties->fileSize, expected->fileSize);
        expectEqual(properties->properties, expected->properties);
        EXPECT_EQ(reader.readInfo()->width, readPictureInfo(file)->width);
    }
    const fs::path file = folder.write("picture", pictureSamples()[0].bytes);
    EXPECT_THAT(ReaderProcess(file).readPicture({.maxBytes = 100}).message(), HasSubstr("not enough memory"));
    EXPECT_THAT(ReaderProcess(file).readPicture({.maxPixels = 100}).message(), HasSubstr("too large"));
    EXPECT_EQ(ReaderProcess(folder.path() / "none.png").readPicture().message(), "There is no file “none.png”.");
}

TEST_F(Readers, HaveMemoryForLargePictures)
{
    constexpr int kSide = 6000;
    Bytes psd = bytesOf(std::string_view("8BPS\0\1\0\0\0\0\0\0\0\1\0\0\x17\x70\0\0\x17\x70\0\x08\0\1\0\0\0\0\0\0\0\0"
                                         "\0\0\0\0\0\0",
        40));
    psd.resize(psd.size() + std::size_t(kSide) * kSide, std::byte(200));
    const Result<CIBitmap> read = ReaderProcess(psd).readPicture();
    ASSERT_TRUE(read) << read.message();
    EXPECT_EQ(read->height(), kSide);
    EXPECT_EQ(pixelAt(*read, kSide - 1, kSide - 1)[0], 200);
}

TEST_F(Readers, HandOverMetadata)
{
    const Bytes plain = *encodePicture(noiseBitmap(9, 7), {.format = PictureFormat::Jpeg});
    const fs::path file = folder.write("plain.jpg", plain);
    const std::string command = "exiv2 -M'set Exif.Image.Make Lumi' -M'set Exif.Photo.FNumber 28/10' -M'set "
                                "Exif.Image.XResolution 300/1' -M'set Exif.Image.ResolutionUnit 2' -M'set "
                                "Iptc.Application2.City Wien' -M'set Xmp.dc.creator Ann' "
        + file.string();
    if (std::system("command -v exiv2 >/dev/null") != 0)
        GTEST_SKIP() << "exiv2 is not installed";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const auto metadata = ReaderProcess(file).readMetadata(), expected = PictureMetadata::ofFile(file);
    ASSERT_TRUE(metadata && expected);
    EXPECT_EQ(metadata->dotsPerInch(), 300);
    EXPECT_EQ(metadata->file(), file);
    const auto written = [&](const std::shared_ptr<const PictureMetadata>& with) {
        return readPictureProperties(
            folder.write(
                "copy.jpg", *encodePicture(noiseBitmap(9, 7), {.format = PictureFormat::Jpeg, .metadata = with})))
            ->properties;
    };
    expectEqual(written(metadata), written(expected));
    EXPECT_EQ(ReaderProcess(folder.write("none.png", pictureSamples()[0].bytes)).readMetadata(), nullptr);
}

TEST_F(Readers, WaitInOneThread)
{
    ReaderProcess::prepare();
    ASSERT_TRUE(comesTrue([] { return !readers().empty() && isWaiting(readers().back()); }));
    EXPECT_EQ(statusLine(readers().back(), "Threads:"), "\t1") << "another one would not be in the sandbox";
}

TEST_F(Readers, MayDieAtAnyTime)
{
    const fs::path file =
        folder.write("noise.jpg", *encodePicture(noiseBitmap(1500, 1500), {.format = PictureFormat::Jpeg}));
    const Result<CIBitmap> expected = readPicture(file);
    std::uint32_t state = 7;
    int failures = 0;
    for (int round = 0; round < 40; ++round) {
        const auto delay = std::chrono::microseconds((state = state * 1664525 + 1013904223) % 90'000);
        std::thread killer([delay] {
            std::this_thread::sleep_for(delay);
            for (const pid_t reader : readers())
                ::kill(reader, SIGKILL);
        });
        ReaderProcess reader(file);
        const Result<CIBitmap> read = reader.readPicture();
        if (read) {
            expectEqual(read, expected);
        } else {
            ++failures;
            EXPECT_EQ(read.message(), "“noise.jpg” is damaged or incomplete, so it can't be opened.");
            EXPECT_FALSE(reader.readInfo()) << "it isn't started again";
        }
        killer.join();
    }
    EXPECT_GT(failures, 0);
    EXPECT_TRUE(comesTrue([&] { return ReaderProcess(file).readPicture().isOk(); })) << "when the last has died";
    expectEqual(ReaderProcess(file).readPicture(), expected);
}

TEST_F(Readers, MayDoWhateverFilesTell)
{
    ReaderProcess::setProgram(LUMIVEX_MISBEHAVING_READER);
    const Bytes sound = pictureSamples()[0].bytes;
    for (const char* words : {"crash", "abort", "exit", "babble", "keep", "more than there is"}) {
        const fs::path file = folder.write("bad.qoi", order(words));
        EXPECT_EQ(
            ReaderProcess(file).readPicture().message(), "“bad.qoi” is damaged or incomplete, so it can't be opened.")
            << words;
        expectEqual(ReaderProcess(sound).readPicture(), readPicture(sound));
    }
    for (const char* words : {"sleep", "spin"}) {
        const fs::path file = folder.write("bad.qoi", order(words));
        EXPECT_THAT(
            ReaderProcess(file).readPicture({.timeLimit = std::chrono::seconds(0)}).message(), HasSubstr("is damaged"));
        const std::atomic<bool> isCancelled = true;
        EXPECT_THAT(ReaderProcess(file).readPicture({.cancelled = &isCancelled}).message(), HasSubstr("given up"));
    }
#ifndef __SANITIZE_ADDRESS__
    EXPECT_THAT(ReaderProcess(folder.write("bad.qoi", order("gobble"))).readPicture().message(),
        HasSubstr("not enough memory"));
#endif
    EXPECT_TRUE(comesTrue([] { return readers().size() <= 2; })) << "none is left behind but the next ones";
}

TEST_F(Readers, SeeNothingButTheirFile)
{
    ReaderProcess::setProgram(LUMIVEX_MISBEHAVING_READER);
    folder.write("other.txt", bytesOf("a secret"));
    for (const char* start : {"qoif order:", "%PDF-order:"}) {
        const fs::path file = folder.write("bad", bytesOf(start + folder.path().string()));
        EXPECT_EQ(ReaderProcess(file).readPicture().message(), "“bad” can't be read: it could .") << start;
    }
    EXPECT_TRUE(fs::exists(folder.path() / "other.txt"));
    EXPECT_THAT(
        ReaderProcess(folder.write("bad", bytesOf("%PDF-order:fonts"))).readPicture().message(), HasSubstr(": seen"));
    EXPECT_THAT(ReaderProcess(folder.write("bad", order("fonts"))).readPicture().message(), HasSubstr("not seen"));
}

TEST_F(Readers, AreMissedWithoutHarm)
{
    ReaderProcess::setProgram(folder.path() / "none");
    EXPECT_EQ(ReaderProcess(folder.write("a.png", pictureSamples()[0].bytes)).readPicture().message(),
        "“a.png” can't be opened.");
}

} // namespace
