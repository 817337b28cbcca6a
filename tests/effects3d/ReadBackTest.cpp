#include "effects3d/OpenGLDevice.h"
#include "effects3d/OpenGLFrame.h"
#include "effects3d/OpenGLScreenReader.h"
#include "effects3d/PictureTexture.h"
#include "effects3d/Texture2D.h"
#include "platform/imageio/PictureReader.h"
#include "tests/effects3d/SceneFixture.h"

#include <QColorSpace>
#include <QTemporaryDir>

namespace {

/// A frame of 4 x 3 pixels, cleared.
struct ReadBackTest : testing::Test {
    std::shared_ptr<OpenGLDevice> device = OpenGLDevice::shared();
    OpenGLFrame frame{device};

    void SetUp() override
    {
        ASSERT_TRUE(frame.begin({4, 3}));
        glClearColor(0, 0, 0, 0);
        glClear(GL_COLOR_BUFFER_BIT);
    }
    void TearDown() override
    {
        frame.end();
        Texture2D::setTexParameters({});
    }
    static void fillRow(int fromBelow, float red, float green, float blue)
    {
        glEnable(GL_SCISSOR_TEST);
        glScissor(0, fromBelow, 4, 1);
        glClearColor(red, green, blue, 1);
        glClear(GL_COLOR_BUFFER_BIT);
        glDisable(GL_SCISSOR_TEST);
    }
    static std::string letters(const QImage& image)
    {
        std::string rows;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                rows += letterOf(image.pixel(x, y));
        return rows;
    }
};

TEST_F(ReadBackTest, TheLowestRowOfOpenGLIsTheLastOfTheImage)
{
    fillRow(0, 1, 0, 0);
    fillRow(2, 0, 0, 1);
    EXPECT_EQ(letters(frame.end()), "bbbb....rrrr");
}

TEST_F(ReadBackTest, WritesATIFFFile)
{
    const QTemporaryDir folder;
    OpenGLScreenReader reader(QSize(4, 3));
    EXPECT_EQ(letters(reader.createRGBAImageFromBufferData()), "............") << "zero before it is read";
    EXPECT_EQ(letters(reader.createRGBImageFromBufferData()), "kkkkkkkkkkkk") << "without alpha";
    const QString file = folder.filePath("shot.tiff");
    reader.createTIFFImageFile(file);
    const auto read = readPicture(std::filesystem::path(file.toStdString()));
    ASSERT_TRUE(bool(read));
    EXPECT_EQ(read.value().width(), 4);
    EXPECT_EQ(read.value().height(), 3);

    try {
        reader.createTIFFImageFile(folder.filePath("nowhere/shot.tiff"));
        ADD_FAILURE() << "written into a folder that isn't there";
    } catch (const OpenGLScreenReader::Failure& failure) {
        EXPECT_STREQ(failure.what(), "Image could not be written successfully");
    }
}

TEST_F(ReadBackTest, FailsWithOpenGLsErrorAndOnlyWithItsOwn)
{
    const auto fails = [](int width) -> std::string {
        std::array<std::uint32_t, 12> pixels{};
        try {
            OpenGLScreenReader::readPartialScreenToBufferBufferHeightBufferBaseAddress(width, 1, pixels.data());
        } catch (const OpenGLScreenReader::Failure& failure) {
            return failure.what();
        }
        return "";
    };
    frame.end();
    OpenGLFrame oneSample(device);
    ASSERT_TRUE(oneSample.begin({4, 3}));
    oneSample.end();
    EXPECT_EQ(fails(-1), "OpenGL error 0x0501");
    glEnable(GL_RGBA); // an error of somebody else's
    EXPECT_NE(fails(4), "OpenGL error 0x0500");
    ASSERT_TRUE(frame.begin({4, 3}));
}

TEST_F(ReadBackTest, TexturesTakeTheFormatOfTheirPicture)
{
    EXPECT_FALSE(Texture2D::initWithImage({}));
    const auto formatOf = [](const QImage& image) { return Texture2D::initWithImage(image)->pixelFormat(); };
    QImage image(5, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_EQ(formatOf(image), Texture2D::PixelFormat::RGBA8888);
    EXPECT_EQ(formatOf(image.convertToFormat(QImage::Format_ARGB4444_Premultiplied)), Texture2D::PixelFormat::RGBA8888)
        << "few bits, but alpha";
    EXPECT_EQ(formatOf(image.convertToFormat(QImage::Format_RGB555)), Texture2D::PixelFormat::RGB565);
    QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    grey.setColorSpace({});
    EXPECT_EQ(formatOf(grey), Texture2D::PixelFormat::A8);
    grey.setColorSpace(QColorSpace::SRgb);
    EXPECT_EQ(formatOf(grey), Texture2D::PixelFormat::RGBA8888);
    EXPECT_EQ(glGetError(), GLenum(GL_NO_ERROR));
    EXPECT_THROW(Texture2D::initWithDataPixelFormatPixelsWidePixelsHighContentSize(
                     image.constBits(), Texture2D::PixelFormat(4), 5, 3, {5, 3}),
        std::logic_error);
}

TEST_F(ReadBackTest, TexturesRememberTheirSizeAndTakeTheClassWideParameters)
{
    QImage image(8, 4, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::red);
    Texture2D::saveTexParameters();
    Texture2D::setAliasTexParameters();
    const auto texture = Texture2D::initWithDataPixelFormatPixelsWidePixelsHighContentSize(
        image.constBits(), Texture2D::PixelFormat::RGBA8888, 8, 4, {6, 3});
    Texture2D::restoreTexParameters();
    EXPECT_EQ(Texture2D::texParameters(), Texture2D::TexParameters());
    EXPECT_EQ(texture->maxS(), 0.75f);
    EXPECT_EQ(texture->maxT(), 0.75f);
    GLint bound = -1, filter = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ(bound, 0) << "what was bound stays bound";
    glBindTexture(GL_TEXTURE_2D, texture->name());
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &filter);
    glBindTexture(GL_TEXTURE_2D, 0);
    EXPECT_EQ(filter, GL_NEAREST);
}

TEST_F(ReadBackTest, ATextureDrawsItsPictureUpright)
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setPixelColor(0, 0, Qt::blue);
    Texture2D::setAliasTexParameters();
    const auto texture = Texture2D::initWithImage(image);
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glEnable(GL_TEXTURE_2D);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, 4, 0, 3, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    texture->drawAtPoint({1, 0});
    glPopAttrib();
    EXPECT_EQ(letters(frame.end()), ".....br..rr.");
}

TEST_F(ReadBackTest, ThePictureIsUploadedOnceAndOnlyAsLargeAsTheFrameNeeds)
{
    ASSERT_TRUE(frame.begin({200, 100}));
    const CIImage picture = bandsPicture(3000, 2000);
    const auto texture = PictureTexture::of(picture);
    ASSERT_TRUE(texture);
    EXPECT_EQ(PictureTexture::of(picture), texture);
    texture->bind();
    GLint width = 0;
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
    EXPECT_GE(width, 250);
    EXPECT_LE(width, 512);
    ASSERT_TRUE(frame.begin({800, 800}));
    const auto finer = PictureTexture::of(picture);
    EXPECT_NE(finer, texture);
    ASSERT_TRUE(frame.begin({200, 100}));
    EXPECT_EQ(PictureTexture::of(picture), finer) << "fine enough";
    EXPECT_NE(PictureTexture::of(bandsPicture(3000, 2000)), finer) << "another picture";
    EXPECT_FALSE(PictureTexture::of(CIImage::fromColor(CIColor(1, 0, 0, 1)))) << "has no end";
    glBindTexture(GL_TEXTURE_2D, 0);
}

} // namespace
