#include "tools/lumivex-render/BatchFiles.h"

#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/StoredRecords.h"
#include "platform/imageio/PictureProperties.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <QString>
#include <sys/wait.h>

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::Not;

CIBitmap plain(int width, int height, CIFormat format = CIFormat::RGBA8)
{
    CIBitmap picture(width, height, format, CIAlpha::Opaque);
    for (int y = 0; y < height; ++y)
        std::ranges::fill(picture.mutableRow<std::uint8_t>(y), std::uint8_t(255));
    return picture;
}

StoredRecord favourite(const CIDictionary& values)
{
    StoredRecord record;
    for (const auto& [key, value] : values)
        record[QString::fromStdString(key)] = KeyedArchive::archivedData(value);
    return record;
}

/// A folder with three favourites, and pictures in "in".
class BatchProgram : public ::testing::Test {
protected:
    BatchProgram()
    {
        std::string name = (fs::temp_directory_path() / "lumivex-batch-XXXXXX").string();
        folder = mkdtemp(name.data()) ? name : "";
        fs::create_directories(folder / "in");
        fs::create_directories(folder / "lumivex");
        const CIImage old = CIImage::fromBitmap(plain(2, 2));
        EXPECT_TRUE(
            writeStoredRecords({favourite({{"class", "CIColorInvert"}, {"ToolTipName", "Invert"}, {"inputImage", old}}),
                                   favourite({{"class", "CILanczosScaleTransform"}, {"ToolTipName", "Half"},
                                       {"inputScale", 0.5}, {"inputImage", old}}),
                                   favourite({{"class", "CINoSuchFilter"}, {"ToolTipName", "Lost"}})},
                QString::fromStdString((folder / "lumivex" / "EffectsFavorites.cbor").string())));
    }
    ~BatchProgram() override { fs::remove_all(folder); }

    void write(const char* name, PictureFormat format, const CIBitmap& bitmap = plain(6, 4))
    {
        EXPECT_TRUE(writePicture(bitmap, folder / "in" / name, {.format = format}));
    }
    /// The exit status; standard output and error are in `output` and `errors`.
    int run(const std::string& arguments, const std::string& before = {}, const fs::path& program = LUMIVEX_RENDER)
    {
        const std::string command = "cd '" + folder.string() + "' && env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME='"
            + folder.string() + "' " + before + " '" + program.string() + "' " + arguments + " >out.txt 2>err.txt";
        const int status = std::system(command.c_str());
        output = contentOf("out.txt");
        errors = contentOf("err.txt");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string contentOf(const char* name) const
    {
        std::ostringstream text;
        text << std::ifstream(folder / name).rdbuf();
        return text.str();
    }
    int firstByte(const char* name) const
    {
        const Result<CIBitmap> picture = readPicture(folder / name);
        return picture ? int(std::to_integer<std::uint8_t>(picture->row(0)[0])) : -1;
    }
    std::string formatOf(const char* name) const
    {
        const Result<PictureInfo> info = readPictureInfo(folder / name);
        return info ? fileFormat(info->format).name + (" " + std::to_string(info->bitsPerComponent)) : info.message();
    }
    std::size_t fileCount(const char* name) const
    {
        return std::size_t(std::distance(fs::directory_iterator(folder / name), fs::directory_iterator()));
    }

    fs::path folder;
    std::string output, errors;
};

TEST_F(BatchProgram, KeepsNamesAndFormatsAndNeedsNoDisplay)
{
    write("a.jpg", PictureFormat::Jpeg);
    write("-b.tiff", PictureFormat::Tiff, plain(5, 5, CIFormat::RGBA16));
    write("C.PNG", PictureFormat::Png);
    write("named.jpg", PictureFormat::WebP);
    std::ofstream(folder / "in/d.svg") << "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>";
    ASSERT_EQ(run("--list-favourites"), 0);
    EXPECT_EQ(output, "Invert\nHalf\nLost\n");
    ASSERT_EQ(run("--favourite Invert -o new/folder -- in/*"), 0) << errors;
    EXPECT_EQ(output + errors, "") << "nothing to tell anybody who does not look on";
    EXPECT_EQ(fileCount("new/folder"), 5U) << "and no unfinished ones";
    EXPECT_LE(firstByte("new/folder/a.jpg"), 2);
    EXPECT_EQ(firstByte("new/folder/-b.tiff"), 0);
    EXPECT_EQ(formatOf("new/folder/a.jpg"), "JPEG 8");
    EXPECT_EQ(formatOf("new/folder/-b.tiff"), "TIFF 16");
    EXPECT_EQ(formatOf("new/folder/C.PNG"), "PNG 8");
    EXPECT_EQ(formatOf("new/folder/named.jpg"), "WebP 8") << "the content tells, not the name";
    EXPECT_EQ(formatOf("new/folder/d.png"), "PNG 8");

    ASSERT_EQ(run("in/C.PNG --favourite Half -o half"), 0) << errors;
    EXPECT_EQ(readPictureInfo(folder / "half/C.PNG")->width, 3);
}

TEST_F(BatchProgram, NamesFilesThatFailAndGoesOn)
{
    write("a.png", PictureFormat::Png);
    write("z.png", PictureFormat::Png);
    std::ofstream(folder / "in/broken.png") << "\x89PNG\r\n\x1a\n and nothing else that would help";
    fs::create_directories(folder / "out/z.png/taken"); // no file can get that name
    EXPECT_EQ(run("--favourite Invert in/broken.png in/none.png in/z.png in/a.png in/../in/a.png -o out"), 1);
    for (const char* name : {"in/broken.png", "in/none.png", "in/z.png", "in/../in/a.png"})
        EXPECT_THAT(errors, HasSubstr("lumivex-render: " + std::string(name) + ": ")) << "each with its reason";
    EXPECT_EQ(std::ranges::count(errors, '\n'), 4);
    EXPECT_EQ(firstByte("out/a.png"), 0);
}

TEST_F(BatchProgram, LosesOneFileToOneCrash)
{
    write("a.png", PictureFormat::Png);
    write("c.png", PictureFormat::Png);
    std::ofstream(folder / "in/b.qoi") << "qoif order:crash";
    fs::create_directories(folder / "bin");
    fs::copy(LUMIVEX_RENDER, folder / "bin/lumivex-render"); // readers beside the program come first
    fs::copy(LUMIVEX_MISBEHAVING_READER, folder / "bin/lumivex-read");
    EXPECT_EQ(run("--favourite Invert in/a.png in/b.qoi in/c.png -o out", {}, folder / "bin/lumivex-render"), 1);
    EXPECT_THAT(errors, HasSubstr("in/b.qoi: “b.qoi” is damaged"));
    EXPECT_EQ(std::ranges::count(errors, '\n'), 1);
    EXPECT_EQ(firstByte("out/a.png"), 0);
    EXPECT_EQ(firstByte("out/c.png"), 0);
}

TEST_F(BatchProgram, NeverWritesOverAnInput)
{
    write("a.png", PictureFormat::Png);
    write("b.png", PictureFormat::Png);
    fs::create_directories(folder / "out");
    fs::create_symlink(folder / "in/a.png", folder / "out/b.png");
    EXPECT_EQ(run("--favourite Invert in/a.png -o in"), 1);
    EXPECT_THAT(errors, HasSubstr("would overwrite the input file in/a.png; choose another folder"));
    EXPECT_EQ(run("--favourite Invert in/b.png in/a.png -o out"), 1) << "through a link, too";
    EXPECT_EQ(firstByte("in/a.png"), 255);
    EXPECT_EQ(firstByte("in/b.png"), 255);
    EXPECT_EQ(firstByte("out/a.png"), 0);
    EXPECT_EQ(run("--favourite Invert in/a.png -o out"), 0) << "but what is no input gives way";
}

TEST_F(BatchProgram, RefusesWrongUse)
{
    write("a.png", PictureFormat::Png);
    const char* mistakes[] = {"--favourite", "--favourite Invert -o out", "--favourite Invert in/a.png",
        "--favourite None in/a.png -o out", "--favourite '' in/a.png -o out", "--favourite Lost in/a.png -o out",
        "--favourite Invert in/a.png --scale 2 -o out", "--favourite Invert in/a.png -o in/a.png",
        "CIColorInvert --quiet -o out", "--favourite Invert --favourite Half in/a.png -o out"};
    for (const char* arguments : mistakes) {
        EXPECT_EQ(run(arguments), 2) << arguments;
        EXPECT_THAT(errors, MatchesRegex("lumivex-render: [^\n]+\n")) << arguments;
    }
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(BatchProgram, ShowsATerminalEachFileAndLeavesNothingWhenStopped)
{
    write("a.png", PictureFormat::Png);
    write("b.png", PictureFormat::Png);
    const auto inTerminal = [&](const std::string& arguments) {
        const std::string command = "cd '" + folder.string() + "' && XDG_DATA_HOME='" + folder.string()
            + "' script -qec \"'" LUMIVEX_RENDER "' " + arguments + "\" /dev/null >out.txt </dev/null";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return contentOf("out.txt");
    };
    EXPECT_THAT(inTerminal("--favourite Invert in/a.png in/b.png -o out"),
        MatchesRegex("\\[1/2\\] out/[ab].png\r\n\\[2/2\\] out/[ab].png\r\n"));
    EXPECT_EQ(inTerminal("--favourite Invert --quiet in/a.png -o out"), "");

    write("large.tiff", PictureFormat::Tiff, plain(3000, 3000));
    constexpr std::size_t kMany = 60;
    for (std::size_t i = 0; i < kMany; ++i)
        fs::create_symlink("large.tiff", folder / "in" / (std::to_string(i) + ".tiff"));
    EXPECT_EQ(run("--favourite Invert in/?.tiff in/??.tiff -o stopped", "timeout --preserve-status -s TERM 1"), 1);
    EXPECT_EQ(errors, "lumivex-render: stopped\n");
    EXPECT_LT(fileCount("stopped"), kMany);
    for (const auto& entry : fs::directory_iterator(folder / "stopped"))
        EXPECT_THAT(entry.path().filename().string(), Not(::testing::StartsWith("."))) << "what is there is whole";
}

TEST(BatchFiles, AsksForMemoryByThePixels)
{
    std::string name = (fs::temp_directory_path() / "lumivex-plan-XXXXXX").string();
    const fs::path folder = mkdtemp(name.data());
    ASSERT_TRUE(writePng(plain(100, 10), folder / "a.png"));
    ASSERT_TRUE(writePng(plain(100, 10, CIFormat::RGBA16), folder / "b.png"));
    BatchFiles files({}, folder / "out");
    EXPECT_GE(files.plan(folder / "a.png").memory, 2 * 4 * 1000);
    EXPECT_GE(files.plan(folder / "b.png").memory, 2 * 8 * 1000);
    EXPECT_THROW(files.plan(folder / "out" / ".." / "a.png"), std::runtime_error) << "the name is taken";
    fs::remove_all(folder);
}

} // namespace
