#include "platform/coreimage/CIImage.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/PackedBitmap.h"
#include "tests/fuzz/Targets.h"
#include "tests/imageio/PictureSamples.h"

#include <QBuffer>
#include <QCborArray>
#include <QCborMap>

namespace {

using Seeds = std::vector<Bytes>;

Bytes bytesOf(const QByteArray& array)
{
    return ::bytesOf(std::string_view(array.constData(), std::size_t(array.size())));
}

Seeds pictures()
{
    Seeds seeds;
    for (PictureSample& sample : pictureSamples())
        seeds.push_back(std::move(sample.bytes));
    return seeds;
}

/// With an XMP packet as its first segment.
Bytes withXmp(const Bytes& jpeg)
{
    const std::string packet = std::string("http://ns.adobe.com/xap/1.0/") + '\0'
        + "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
          "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' "
          "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' "
          "tiff:Orientation='6'><dc:creator><rdf:Seq><rdf:li>Somebody</rdf:li>"
          "</rdf:Seq></dc:creator></rdf:Description></rdf:RDF></x:xmpmeta>";
    const int length = int(packet.size()) + 2;
    Bytes file = ::bytesOf({0xff, 0xd8, 0xff, 0xe1, length >> 8, length & 255});
    append(file, ::bytesOf(packet));
    file.insert(file.end(), jpeg.begin() + 2, jpeg.end());
    return file;
}

Seeds describedPictures()
{
    Seeds seeds;
    for (PictureSample& sample : pictureSamples()) {
        if (sample.name == "jpeg")
            seeds.push_back(withXmp(sample.bytes));
        seeds.push_back(std::move(sample.bytes));
    }
    const auto text = [](std::string_view words) { return std::vector<std::int64_t>(words.begin(), words.end()); };
    const Bytes pixels(12, std::byte(50));
    seeds.push_back(tiffFile(2, 2, 3, 8, 2, pixels,
        {{271, 2, text("Maker")}, {272, 2, text("Camera")}, {282, 5, {300, 1}}, {296, 3, {2}},
            {306, 2, text("2020:01:02 03:04:05")}, {33432, 2, text("Somebody")}, {33434, 5, {1, 250}},
            {37386, 10, {50, 1}}}));
    return seeds;
}

Seeds archives()
{
    const CIImage image = CIImage::fromBitmap(noiseBitmap(3, 2));
    const CIDictionary values{{"class", "CIGaussianBlur"}, {"inputRadius", 10.0}, {"isOn", true},
        {"inputColor", CIColor(0.1, 0.2, 0.3, 1)}, {"inputCenter", CIVector({150, 150})},
        {"inputTransform", CIAffineTransform{1, 0, 0, 1, 5, 6}}, {"inputImage", image},
        {"moved", image.transformed(CIAffineTransform::translation(3, 4))}, {"data", CIData(5, std::byte(7))},
        {"list", CIArray{1.0, "text", CIValue()}}};
    Seeds seeds;
    QCborMap record;
    for (const auto& [key, value] : values) {
        const QByteArray archive = KeyedArchive::archivedData(value);
        seeds.push_back(bytesOf(archive));
        record.insert(QString::fromStdString(key), archive);
    }
    record.insert(QStringLiteral("large"), QStringLiteral("0123456789abcdef"));
    seeds.push_back(bytesOf(KeyedArchive::archivedData(values)));
    seeds.push_back(bytesOf(QCborValue(QCborArray{record, QCborMap()}).toCbor()));
    return seeds;
}

Seeds journals()
{
    Seeds seeds;
    for (const CIFormat format : {CIFormat::RGBA8, CIFormat::RGBA16, CIFormat::RGBAf}) {
        const Bytes state = bytesOf(KeyedArchive::archivedData(CIDictionary{{"version", 1},
            {"values",
                CIDictionary{{"path", "/tmp/a.jpg"}, {"mode", 0.0}, {"inputs", CIDictionary{{"inputRadius", 3.0}}}}},
            {"pictures", CIDictionary{{"picture", "picture-0"}}}}));
        QBuffer picture;
        picture.open(QIODevice::WriteOnly);
        packBitmap(noiseBitmap(5, 130, format), picture);
        Bytes seed = ::bytesOf({int(state.size() & 255), int(state.size() >> 8)});
        append(seed, state);
        append(seed, bytesOf(picture.data()));
        seeds.push_back(std::move(seed));
    }
    return seeds;
}

Seeds commandLines()
{
    return {::bytesOf("--filter\nCIGaussianBlur\n--set\ninputRadius=10\n--rect\n0,0,100,100\n--scale\n2\n"
                      "--image\ninputImage=a.png\n--repeat\n3\n--output\nb.png"),
        ::bytesOf("--batch\n--favourite\nGaussian Blur\n--output\nfolder\na.jpg\nb.jpg"), ::bytesOf("1,0,0,1,-5.5,6e3"),
        ::bytesOf("#12345678\n#abcdef\n0.1,0.2,.3"), ::bytesOf("150, 150\n1e308,-1e308\nnan\ninf,0x10\n,,,")};
}

} // namespace

std::vector<std::vector<std::byte>> seedsOf(std::string_view target)
{
    if (target == "picture")
        return pictures();
    if (target == "metadata")
        return describedPictures();
    if (target == "archive")
        return archives();
    if (target == "journal")
        return journals();
    return commandLines();
}
