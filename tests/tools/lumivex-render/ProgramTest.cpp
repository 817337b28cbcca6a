#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <sys/wait.h>

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

struct Outcome {
    int status = -1;
    std::string output, errors;
};

/// Runs the program in a folder of its own, in which "in.png" is a picture of 3 x 2 pixels.
class RenderProgram : public ::testing::Test {
protected:
    RenderProgram()
    {
        std::string name = (fs::temp_directory_path() / "lumivex-render-XXXXXX").string();
        folder = mkdtemp(name.data()) ? name : "";
        CIBitmap picture(3, 2, CIFormat::RGBA8, CIAlpha::Opaque);
        for (int y = 0; y < 2; ++y)
            for (std::uint8_t& byte : picture.mutableRow<std::uint8_t>(y))
                byte = 255;
        picture.mutableRow<std::uint8_t>(0)[1] = 0; // magenta at the top left
        EXPECT_TRUE(writePng(picture, folder / "in.png"));
    }
    ~RenderProgram() override { fs::remove_all(folder); }

    std::string contentOf(const char* name) const
    {
        std::ostringstream text;
        text << std::ifstream(folder / name).rdbuf();
        return text.str();
    }

    Outcome run(const std::string& arguments) const
    {
        const std::string command =
            "cd '" + folder.string() + "' && '" LUMIVEX_RENDER "' " + arguments + " >out.txt 2>err.txt";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf("out.txt"), contentOf("err.txt")};
    }

    CIBitmap rendered() const
    {
        const Result<CIBitmap> result = readPicture(folder / "out.png");
        EXPECT_TRUE(result) << result.message();
        return result ? *result : CIBitmap(1, 1);
    }

    fs::path folder;
};

TEST_F(RenderProgram, TellsWhatThereIs)
{
    EXPECT_THAT(run("--version").output, StartsWith("lumivex-render "));
    EXPECT_THAT(run("--help").output, HasSubstr("--set key=value"));
    EXPECT_THAT(run("--list").output, HasSubstr("\nCIGaussianBlur\tGaussian Blur\tCICategoryBlur,"));
    const Outcome described = run("--describe CIGaussianBlur");
    EXPECT_EQ(described.status, 0);
    EXPECT_LT(described.output.find("\"inputImage\""), described.output.find("\"inputRadius\"")) << "in their order";
    EXPECT_THAT(described.output, HasSubstr("\"CIAttributeDefault\": 10"));
}

TEST_F(RenderProgram, RendersTheExtentOrWhatIsAskedFor)
{
    ASSERT_EQ(run("CIColorInvert --image inputImage=in.png -o out.png").errors, "");
    CIBitmap out = rendered();
    EXPECT_EQ(out.width(), 3);
    EXPECT_EQ(out.row<std::uint8_t>(0)[1], 255) << "magenta becomes green, and row 0 is on top";
    EXPECT_EQ(out.row<std::uint8_t>(0)[0], 0);

    ASSERT_EQ(run("CIColorInvert --image inputImage=in.png --rect 0,1,2,1 --scale 2 -o out.png").status, 0);
    out = rendered();
    EXPECT_EQ(out.width(), 4);
    EXPECT_EQ(out.height(), 2);

    ASSERT_EQ(run("CIConstantColorGenerator --set inputColor=#336699ff -o out.png").status, 0);
    out = rendered();
    EXPECT_EQ(out.width(), 512) << "an endless image without a picture";
    EXPECT_EQ(out.row<std::uint8_t>(7)[2], 0x99);
}

TEST_F(RenderProgram, DrawsTextWithoutADisplay)
{
    unsetenv("DISPLAY");
    unsetenv("WAYLAND_DISPLAY");
    ASSERT_EQ(run("CITextImageGenerator --set inputText=Ink --set inputFontSize=40 -o out.png").errors, "");
    const CIBitmap out = rendered();
    EXPECT_GT(out.width(), out.height());
    EXPECT_GE(out.height(), 40);
    double ink = 0;
    for (int y = 0; y < out.height(); ++y)
        for (std::size_t i = 3; i < out.row<std::uint8_t>(y).size(); i += 4)
            ink += out.row<std::uint8_t>(y)[i] / 255.0;
    EXPECT_GT(ink / (out.width() * out.height()), 0.05);
    EXPECT_LT(ink / (out.width() * out.height()), 0.6);
}

TEST_F(RenderProgram, FitsWhatIsNotSetToThePicture)
{
    ASSERT_EQ(run("CIColorAbsoluteDifference --image inputImage=in.png --fit -o out.png").errors, "");
    const CIBitmap out = rendered();
    EXPECT_EQ(out.row<std::uint8_t>(0)[1], 255) << "magenta from white: the second picture is the first upside down";
    EXPECT_EQ(out.row<std::uint8_t>(0)[0], 0);

    ASSERT_EQ(run("CIVignette --image inputImage=in.png --fit --set inputIntensity=0 -o out.png").errors, "");
    EXPECT_EQ(rendered().row<std::uint8_t>(1)[0], 255) << "what is set stays";
    EXPECT_THAT(run("CIMix --fit -o none.png").errors, HasSubstr("missing: inputImage"));
    EXPECT_EQ(run("CICheckerboardGenerator --fit -o out.png").status, 0);
    EXPECT_EQ(run("--favourite Some --fit in.png -o .").status, 2);
}

TEST_F(RenderProgram, WritesTheFormatThatTheNameSays)
{
    const std::pair<const char*, const char*> cases[] = {{"out.jpg", "JPEG"}, {"out.TIF", "TIFF"}, {"out", "PNG"}};
    for (const auto& [name, format] : cases) {
        EXPECT_EQ(run("CIColorInvert --image inputImage=in.png -o " + std::string(name)).errors, "");
        const Result<PictureInfo> info = readPictureInfo(folder / name);
        ASSERT_TRUE(info) << info.message();
        EXPECT_STREQ(fileFormat(info->format).name, format) << name;
    }
}

TEST_F(RenderProgram, TimesRenders)
{
    const Outcome timed = run("CIGaussianBlur --image inputImage=in.png --repeat 4 -o out.png");
    EXPECT_EQ(timed.status, 0);
    double median = 0, least = 0, most = 0;
    ASSERT_EQ(std::sscanf(timed.output.c_str(), "%lf\t%lf\t%lf\n", &median, &least, &most), 3) << timed.output;
    EXPECT_LE(least, median);
    EXPECT_LE(median, most);
    EXPECT_TRUE(fs::exists(folder / "out.png"));
}

TEST_F(RenderProgram, SaysMistakesInOneLine)
{
    std::ofstream(folder / "broken.png") << "\x89PNG\r\n\x1a\n and nothing else that would help";
    const char* mistakes[] = {"", "NoSuchFilter -o out.png", "--describe NoSuchFilter", "--describe", "--nonsense",
        "CIGaussianBlur CIBoxBlur -o out.png", "CIGaussianBlur --image inputImage=in.png", "CIGaussianBlur -o out.png",
        "CIGaussianBlur --image inputImage=in.png --set inputRadius -o out.png",
        "CIGaussianBlur --image inputImage=in.png --set inputRadius=wide -o out.png",
        "CIGaussianBlur --image inputImage=in.png --set inputSize=3 -o out.png",
        "CIGaussianBlur --image inputRadius=in.png -o out.png", "CIGaussianBlur --image inputImage=none.png -o out.png",
        "CIGaussianBlur --image inputImage=broken.png -o out.png",
        "CIGaussianBlur --image inputImage=in.png --rect 0,0,0,5 -o out.png",
        "CIGaussianBlur --image inputImage=in.png --rect 1e300,0,5,5 -o out.png",
        "CIGaussianBlur --image inputImage=in.png --rect 0,0,1e6,1e6 -o out.png",
        "CIGaussianBlur --image inputImage=in.png --scale -1 -o out.png",
        "CIGaussianBlur --image inputImage=in.png --repeat 0 -o out.png",
        "CIGaussianBlur --image inputImage=in.png -o nowhere/out.png",
        "CIGaussianBlur --image inputImage=in.png -o out.xyz", "CIGaussianBlur --image inputImage=in.png -o out.pdf"};
    for (const char* arguments : mistakes) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_THAT(outcome.errors, MatchesRegex("lumivex-render: [^\n]+\n")) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_FALSE(fs::exists(folder / "out.png")) << arguments;
    }
}

} // namespace
