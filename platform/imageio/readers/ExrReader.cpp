// The EXR library reads only named files.
#include "platform/imageio/readers/Readers.h"

#include <cstdlib>
#include <unistd.h>

namespace imageio {

namespace {

/// A file with the given content that goes away with its last owner; empty when it can't be made.
std::shared_ptr<const std::string> temporaryCopy(std::span<const std::byte> content)
{
    std::string path = (std::filesystem::temp_directory_path() / "lumivex-XXXXXX").string();
    const int descriptor = mkstemp(path.data());
    if (descriptor < 0)
        return nullptr;
    const std::shared_ptr<const std::string> file(new std::string(path), [](const std::string* name) {
        ::unlink(name->c_str());
        delete name;
    });
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written <= 0)
            break;
        content = content.subspan(std::size_t(written));
    }
    ::close(descriptor);
    return content.empty() ? file : nullptr;
}

} // namespace

void openExr(OpenPicture& picture, const PictureInput& input, int)
{
    std::string path = input.path().string();
    if (path.empty()) {
        const auto copy = temporaryCopy(input.memory());
        if (!copy)
            return;
        path = *copy;
        picture.held = copy;
    }
    VipsImagePtr image = derive([&](VipsImage** out) {
        return vips_openexrload(
            path.c_str(), out, "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_ERROR, nullptr);
    });
    if (image && vips_image_get_bands(image.get()) == 4) {
        const double factors[] = {1, 1, 1, 1.0 / 255}, offsets[] = {0, 0, 0, 0}; // libvips counts alpha up to 255
        image = derive([&](VipsImage** out) { return vips_linear(image.get(), out, factors, offsets, 4, nullptr); });
    }
    picture.image = std::move(image);
}

} // namespace imageio
