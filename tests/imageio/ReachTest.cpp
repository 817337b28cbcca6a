// Opening a file reads that file alone: no other one, nothing from the network, and nothing in it is carried out.
#include "tests/imageio/PictureFiles.h"
#include "tests/support/QuietLog.h"

#include "platform/imageio/PictureProperties.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"

#include <fstream>

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// A web server of which only is known whether anybody has called.
class Listener {
public:
    Listener()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<sockaddr*>(&address), size), 0);
        EXPECT_EQ(::listen(m_socket, 8), 0);
        EXPECT_EQ(::getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &size), 0);
        m_port = ntohs(address.sin_port);
    }
    ~Listener() { ::close(m_socket); }

    std::string address() const { return "http://127.0.0.1:" + std::to_string(m_port); }
    bool wasCalled() const
    {
        const int caller = ::accept(m_socket, nullptr, nullptr);
        if (caller >= 0)
            ::close(caller);
        return caller >= 0;
    }

private:
    int m_socket = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0), m_port = 0;
};

class Reach : public testing::Test {
protected:
    Reach()
    {
        CIBitmap red(8, 8, CIFormat::RGBA8, CIAlpha::Opaque);
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 8; ++x)
                red.mutableRow<std::uint8_t>(y)[std::size_t(4 * x)] =
                    red.mutableRow<std::uint8_t>(y)[std::size_t(4 * x + 3)] = 255;
        EXPECT_TRUE(writePng(red, folder.path() / "red.png"));
    }

    static bool hasRed(const CIBitmap& bitmap)
    {
        for (int y = 0; y < bitmap.height(); ++y)
            for (int x = 0; x < bitmap.width(); ++x)
                if (const auto pixel = pixelAt(bitmap, x, y); pixel[0] > 200 && pixel[1] < 60 && pixel[3] > 200)
                    return true;
        return false;
    }
    /// Whether the drawing (or its refusal) shows nothing of the red picture and calls nobody.
    void expectAlone(const std::string& name, const Bytes& content)
    {
        SCOPED_TRACE(std::string(reinterpret_cast<const char*>(content.data()), content.size()));
        const fs::path file = folder.write(name, content);
        const ReadOptions options{.maxSide = 64};
        for (const Result<CIBitmap>& read : {readPicture(file, options), readPicture(content, options)})
            EXPECT_FALSE(read && hasRed(*read));
        static_cast<void>(readPictureProperties(file));
        EXPECT_FALSE(listener.wasCalled());
    }

    const QuietLog quiet;
    TemporaryFolder folder;
    Listener listener;
};

TEST_F(Reach, DrawingsSeeNoOtherFile)
{
    const std::string start = "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
                              "xmlns:xi='http://www.w3.org/2001/XInclude' width='16' height='16'>";
    const std::string own = start + "<rect width='16' height='16' fill='#ff0000'/></svg>";
    ASSERT_TRUE(hasRed(*readPicture(bytesOf(own), {.maxSide = 64}))) << "or the others would prove nothing";
    folder.write("red.svg", bytesOf(own));
    folder.write("red.css", bytesOf("rect { fill: #ff0000 }"));
    folder.write(
        "red.txt", bytesOf("<rect xmlns='http://www.w3.org/2000/svg' width='16' height='16' fill='#ff0000'/>"));
    for (const std::string& place : {listener.address() + "/", "file://" + folder.path().string() + "/",
             folder.path().string() + "/", std::string()}) {
        const std::string picture = place + "red.png", drawing = place + "red.svg", text = place + "red.txt";
        for (const std::string& content : {
                 start + "<image width='16' height='16' xlink:href='" + picture + "'/></svg>",
                 start + "<image width='16' height='16' href='" + drawing + "'/></svg>",
                 start + "<use xlink:href='" + drawing + "#a'/></svg>",
                 start + "<filter id='f'><feImage xlink:href='" + picture
                     + "'/></filter><rect width='16' height='16' filter='url(#f)'/></svg>",
                 start + "<rect width='16' height='16' fill='url(" + drawing + "#a)'/></svg>",
                 start + "<style>@import url('" + place + "red.css');</style><rect width='16' height='16'/></svg>",
                 "<?xml-stylesheet href='" + place + "red.css'?>" + start + "<rect width='16' height='16'/></svg>",
                 start + "<xi:include href='" + drawing + "'/></svg>",
                 start + "<text><xi:include parse='text' href='" + text + "'/></text></svg>",
                 "<!DOCTYPE svg [<!ENTITY x SYSTEM '" + text + "'>]>" + start + "&x;</svg>",
                 "<!DOCTYPE svg [<!ENTITY % x SYSTEM '" + text + "'> %x;]>" + start + "</svg>",
                 "<!DOCTYPE svg SYSTEM '" + text + "'>" + start + "</svg>",
             })
            expectAlone("drawing.svg", bytesOf(content));
    }
}

TEST_F(Reach, DocumentsSeeNoOtherFileAndRunNothing)
{
    const fs::path trace = folder.path() / "trace";
    for (const std::string& place : {listener.address() + "/red.png", (folder.path() / "red.png").string()}) {
        const std::string stream = "q 72 0 0 72 0 0 cm /I Do Q";
        const std::string document = "%PDF-1.4\n"
                                     "1 0 obj <</Type /Catalog /Pages 2 0 R /OpenAction <</S /Launch /F (touch) "
                                     "/Unix (touch "
            + trace.string()
            + ")>> "
              "/Names <</JavaScript <</Names [(a) <</S /JavaScript /JS (app.launchURL\\('"
            + place
            + "'\\))>>]>>>>>> endobj\n"
              "2 0 obj <</Type /Pages /Kids [3 0 R] /Count 1>> endobj\n"
              "3 0 obj <</Type /Page /Parent 2 0 R /MediaBox [0 0 72 72] /Contents 4 0 R "
              "/AA <</O <</S /URI /URI ("
            + place
            + ")>>>> "
              "/Resources <</XObject <</I 5 0 R>>>>>> endobj\n"
              "4 0 obj <</Length "
            + std::to_string(stream.size()) + ">> stream\n" + stream
            + "\nendstream endobj\n"
              "5 0 obj <</Type /XObject /Subtype /Image /Width 8 /Height 8 /ColorSpace /DeviceRGB /BitsPerComponent 8 "
              "/F <</FS /URL /F ("
            + place
            + ")>> /Length 0>> stream\n\nendstream endobj\n"
              "trailer <</Root 1 0 R /Size 6>>\n%%EOF\n";
        EXPECT_TRUE(readPicture(bytesOf(document))) << "a sound document";
        expectAlone("document.pdf", bytesOf(document));
    }
    EXPECT_FALSE(fs::exists(trace));
}

TEST_F(Reach, ProgramsAreNoPictures)
{
    const fs::path trace = folder.path() / "trace";
    const std::string run = "touch " + trace.string(), red = (folder.path() / "red.png").string();
    const std::string programs[] = {
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n(%pipe%" + run + ") (w) file\nshowpage\n",
        "\xc5\xd0\xd3\xc6 a DOS EPS file with its binary header",
        "push graphic-context\nviewbox 0 0 9 9\nimage over 0,0 9,9 '" + red + "'\npop graphic-context\n",
        "push graphic-context\nfill 'url(https://127.0.0.1/x.jpg\"|" + run + "\")'\npop graphic-context\n",
        "<?xml version='1.0'?>\n<image><read filename='" + red + "'/><write filename='" + trace.string()
            + "'/></image>",
        "<?xml version='1.0'?>\n<group><image id='a'><read filename='|" + run + "'/></image></group>",
        "text:@" + red + "\n                ",
        "label:@/etc/passwd    ",
        "ephemeral:" + red,
        "id=ImageMagick  version=1.0\nclass=DirectClass colors=0 columns=1 rows=1\n:\x1a   ",
        "#!/bin/sh\n" + run + "\n",
        "<html><body><script>1</script></body></html>",
        "RIFF\x10\0\0\0AVI LIST    ",
    };
    for (const std::string& program : programs)
        for (const char* name : {"a.png", "a.svg", "a.mvg", "a.msl", "a.eps", "a.psd", "a.miff", "a.bmp"}) {
            const fs::path file = folder.write(name, bytesOf(program));
            EXPECT_THAT(readPicture(file).message(), HasSubstr("not a picture of a kind")) << program;
            EXPECT_FALSE(readPictureProperties(file));
        }
    // The start of a picture makes no way for what follows.
    for (const char* head : {"BM", "8BPS", "\x01\xda\x01\x01"})
        for (const std::string& program : programs)
            EXPECT_FALSE(readPicture(bytesOf(head + program)));
    EXPECT_FALSE(fs::exists(trace));
    EXPECT_FALSE(listener.wasCalled());
}

TEST_F(Reach, NamesAreOnlyNames)
{
    const fs::path back = fs::current_path();
    fs::current_path(folder.path());
    const std::string server = listener.address().substr(5);
    fs::create_directories("http:" + server);
    const Bytes jpeg = withExifOrientation(
        *encodePicture(noiseBitmap(9, 7, CIFormat::RGBA8, CIAlpha::Opaque), {.format = PictureFormat::Jpeg}), 6);
    for (const std::string& name : {"http:" + server + "/a.jpg", std::string("-"), std::string("msl:a.jpg"),
             std::string("a.jpg[page=7]"), std::string("|touch trace"), std::string("data:,a")}) {
        SCOPED_TRACE(name);
        folder.write(name, jpeg);
        EXPECT_TRUE(readPicture(name));
        const Result<PictureFileProperties> read = readPictureProperties(name);
        ASSERT_TRUE(read) << read.message();
        EXPECT_TRUE(
            std::ranges::any_of(read->properties, [](const PictureProperty& group) { return group.key == "{TIFF}"; }));
    }
    EXPECT_TRUE(readPicture(fs::path(folder.write("a[access=x].exr", exrFile()).filename())));
    EXPECT_TRUE(readPicture(fs::path(folder.write("a[1].psd", psdFile()).filename())));
    fs::current_path(back);
    EXPECT_FALSE(fs::exists(folder.path() / "trace"));
    EXPECT_FALSE(listener.wasCalled());
}

TEST_F(Reach, MetadataDontRunAway)
{
    std::string entities = "<!ENTITY a0 'ha'>";
    for (int i = 1; i < 12; ++i) {
        entities += "<!ENTITY a" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j)
            entities += "&a" + std::to_string(i - 1) + ";";
        entities += "'>";
    }
    entities += "<!ENTITY far SYSTEM '" + listener.address() + "/x'>";
    const Bytes jpeg =
        *encodePicture(CIBitmap(9, 7, CIFormat::RGBA8, CIAlpha::Opaque), {.format = PictureFormat::Jpeg});
    for (const char* entity : {"a11", "far"}) {
        const std::string packet = std::string("http://ns.adobe.com/xap/1.0/") + '\0'
            + "<?xml version='1.0'?><!DOCTYPE x [" + entities
            + "]><x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
              "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:format>&"
            + entity + ";</dc:format></rdf:Description></rdf:RDF></x:xmpmeta>";
        const int length = int(packet.size()) + 2;
        Bytes content = bytesOf({0xff, 0xd8, 0xff, 0xe1, length >> 8, length & 255});
        append(content, bytesOf(packet));
        content.insert(content.end(), jpeg.begin() + 2, jpeg.end());
        expectAlone("photo.jpg", content);
        EXPECT_TRUE(readPicture(folder.path() / "photo.jpg")) << "the picture has no part in it";
    }
}

} // namespace
