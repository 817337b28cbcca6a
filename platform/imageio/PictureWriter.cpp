#include "platform/imageio/PictureWriter.h"

#include "platform/coreimage/CIColorProfile.h"
#include "platform/imageio/ImageLog.h"
#include "platform/imageio/MetadataCopy.h"
#include "platform/imageio/PictureRows.h"
#include "platform/imageio/ResolutionTags.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <new>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace imageio;

using TargetPtr = std::unique_ptr<VipsTarget, ObjectUnref>;

struct BlobUnref {
    void operator()(VipsBlob* blob) const { vips_area_unref(VIPS_AREA(blob)); }
};

RowLayout layoutFor(const CIBitmap& bitmap, const WriteOptions& options)
{
    const bool isDeepBitmap = bitmap.format() == CIFormat::RGBA16 || bitmap.format() == CIFormat::RGBAf;
    const int wanted = options.bitsPerComponent ? options.bitsPerComponent : (isDeepBitmap ? 16 : 8);
    RowLayout layout;
    const int most = fileFormat(options.format).writtenBits;
    layout.bits = most == 32 ? 32 : wanted > 8 && most > 8 ? 16 : 8;
    layout.keepsProfile = fileFormat(options.format).writesProfile;
    layout.hasAlpha = bitmap.alpha() != CIAlpha::Opaque && fileFormat(options.format).writesAlpha;
    return layout;
}

void attachProfile(VipsImage* image, const CIBitmap& bitmap, const RowLayout& layout)
{
    if (const CIProfiledSpace* own = layout.keepsProfile ? profiledSpace(bitmap.colorSpace()) : nullptr) {
        const std::vector<std::byte>& icc = own->profile().icc;
        vips_image_set_blob_copy(image, VIPS_META_ICC_NAME, icc.data(), icc.size());
        return;
    }
    VipsBlob* profile = nullptr;
    if (vips_profile_load("srgb", &profile, nullptr) != 0) {
        vips_error_clear(); // files without a profile count as sRGB too
        return;
    }
    const std::unique_ptr<VipsBlob, BlobUnref> owner(profile);
    std::size_t size = 0;
    const void* bytes = vips_blob_get(profile, &size);
    vips_image_set_blob_copy(image, VIPS_META_ICC_NAME, bytes, size);
}

/// Exiv2 doesn't write these files; their encoders take a block of Exif.
bool isInsideImage(const WriteOptions& options)
{
    return options.format == PictureFormat::Avif || options.format == PictureFormat::Heif;
}

NewFile aboutFile(const CIBitmap& bitmap, const WriteOptions& options)
{
    const bool keepsProfile = profiledSpace(bitmap.colorSpace()) && fileFormat(options.format).writesProfile;
    return {bitmap.width(), bitmap.height(), options.dotsPerInch, !keepsProfile};
}

void attachExif(VipsImage* image, const PictureMetadata* metadata, const NewFile& about)
{
    const std::vector<std::byte> block = exifBlock(metadata, about);
    if (!block.empty())
        vips_image_set_blob_copy(image, VIPS_META_EXIF_NAME, block.data(), block.size());
}

void reportProgress(VipsImage* image, VipsProgress* progress, CIRenderControl* control)
{
    control->setProgress(progress->percent / 100.0);
    if (control->isCancelled())
        vips_image_set_kill(image, TRUE);
}

/// False, with the reason logged, when the picture can't be encoded or its bytes can't be stored.
bool encodeTo(VipsTarget* target, const CIBitmap& bitmap, const WriteOptions& options)
{
    const auto encode = fileFormat(options.format).encode;
    const RowLayout layout = layoutFor(bitmap, options);
    VipsImagePtr image = target && encode ? imageOfBitmap(bitmap, layout) : nullptr;
    if (image) {
        if (layout.bits < 32)
            attachProfile(image.get(), bitmap, layout);
        if (isInsideImage(options))
            attachExif(image.get(), options.metadata.get(), aboutFile(bitmap, options));
        if (options.dotsPerInch > 0)
            image = derive([&](VipsImage** out) { // libvips counts dots per millimeter
                const double resolution = options.dotsPerInch / 25.4;
                return vips_copy(image.get(), out, "xres", resolution, "yres", resolution, nullptr);
            });
    }
    if (image && options.control) {
        vips_image_set_progress(image.get(), TRUE);
        g_signal_connect(image.get(), "eval", G_CALLBACK(reportProgress), options.control);
    }
    if (image && encode(image.get(), target, options) == 0)
        return true;
    imageLog("A picture can't be written: " + takeVipsError());
    return false;
}

/// A new file beside the target that disappears again unless it is committed.
class FileBeside {
public:
    explicit FileBeside(const fs::path& target)
        : m_target(target)
    {
        std::error_code error;
        if (fs::is_symlink(target, error))
            m_target = fs::weakly_canonical(target, error);
        static std::atomic<unsigned> counter = 0;
        for (int attempt = 0; attempt < 100 && m_descriptor < 0; ++attempt) {
            m_path =
                m_target.parent_path() / (".lumivex-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
            m_descriptor = ::open(m_path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
            if (m_descriptor < 0 && errno != EEXIST)
                break;
        }
    }
    ~FileBeside()
    {
        if (m_descriptor < 0)
            return;
        ::close(m_descriptor);
        if (!m_isCommitted)
            ::unlink(m_path.c_str());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    int descriptor() const { return m_descriptor; }

    /// Brings the bytes to the disk and the file to its name; errno tells why that failed.
    bool commit()
    {
        struct stat old { };
        if (::stat(m_target.c_str(), &old) == 0 && ::fchmod(m_descriptor, old.st_mode & 07777) != 0)
            imageLog("The permissions of " + m_target.string() + " can't be kept.");
        m_isCommitted = ::fsync(m_descriptor) == 0 && ::rename(m_path.c_str(), m_target.c_str()) == 0;
        if (m_isCommitted)
            flushFolder();
        return m_isCommitted;
    }

private:
    /// So that the new name survives a power cut. Not all file systems can; the file is whole either way.
    void flushFolder() const
    {
        const fs::path folder = m_target.has_parent_path() ? m_target.parent_path() : fs::path(".");
        const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor < 0)
            return;
        static_cast<void>(::fsync(descriptor));
        ::close(descriptor);
    }

    fs::path m_target, m_path;
    int m_descriptor = -1;
    bool m_isCommitted = false;
};

Reason reasonOf(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        return Reason::NoSpace;
    case EACCES:
    case EPERM:
        return Reason::NotPermitted;
    case EROFS:
        return Reason::ReadOnly;
    case ENOENT:
    case ENOTDIR:
        return Reason::NoFolder;
    default:
        return Reason::CannotWrite;
    }
}

Failure cannotWrite(const fs::path& file, int error)
{
    const Failure failure{reasonOf(error), file.filename().string(), error ? std::strerror(error) : ""};
    imageLog(englishText(failure));
    return failure;
}

bool writeAll(int descriptor, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes = bytes.subspan(std::size_t(count));
    }
    return true;
}

/// Libvips puts more into these files than it was given.
bool isReworked(const WriteOptions& options)
{
    return options.format == PictureFormat::Jpeg || options.format == PictureFormat::WebP
        || (options.format == PictureFormat::Png && options.dotsPerInch <= 0);
}

/// In place, since the file may be large.
void dropTiffResolution(int descriptor)
{
    struct stat status { };
    ::fstat(descriptor, &status);
    const std::size_t size = std::size_t(status.st_size);
    void* const bytes = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (bytes == MAP_FAILED)
        return;
    imageio::dropTiffResolution({static_cast<std::byte*>(bytes), size});
    ::munmap(bytes, size);
}

bool encodeInto(int descriptor, const CIBitmap& bitmap, const WriteOptions& options)
{
    if (options.metadata || isReworked(options)) {
        const Result<std::vector<std::byte>> encoded = encodePicture(bitmap, options);
        errno = 0;
        return encoded && writeAll(descriptor, *encoded);
    }
    errno = 0;
    const TargetPtr target(vips_target_new_to_descriptor(descriptor));
    if (!encodeTo(target.get(), bitmap, options))
        return false;
    if (options.format == PictureFormat::Tiff && options.dotsPerInch <= 0)
        dropTiffResolution(descriptor);
    return true;
}

bool isCancelled(const WriteOptions& options) { return options.control && options.control->isCancelled(); }

} // namespace

Result<void> writePicture(const CIBitmap& bitmap, const fs::path& file, const WriteOptions& options)
{
    if (bitmap.isNull())
        return Failure{Reason::NothingToWrite};
    try {
        useVips();
        FileBeside beside(file);
        if (beside.descriptor() < 0)
            return cannotWrite(file, errno);
        const bool isEncoded = encodeInto(beside.descriptor(), bitmap, options);
        if (isCancelled(options))
            return Failure{Reason::NotWritten};
        if (!isEncoded)
            return cannotWrite(file, errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? errno : 0);
        if (!beside.commit())
            return cannotWrite(file, errno);
        return {};
    } catch (const std::exception& error) {
        imageLog(error.what());
        return cannotWrite(file, 0);
    }
}

Result<void> writeBytes(std::span<const std::byte> bytes, const fs::path& file)
{
    FileBeside beside(file);
    if (beside.descriptor() < 0 || !writeAll(beside.descriptor(), bytes) || !beside.commit())
        return cannotWrite(file, errno);
    return {};
}

Result<void> writePng(const CIBitmap& bitmap, const fs::path& file) { return writePicture(bitmap, file); }

Result<std::vector<std::byte>> encodePicture(const CIBitmap& bitmap, const WriteOptions& options)
{
    const Failure failure{Reason::CannotWrite};
    if (bitmap.isNull())
        return failure;
    try {
        useVips();
        const TargetPtr target(vips_target_new_to_memory());
        if (!encodeTo(target.get(), bitmap, options))
            return failure;
        VipsBlob* blob = nullptr; // the savers have ended the target already, and put its bytes there
        g_object_get(target.get(), "blob", &blob, nullptr);
        const std::unique_ptr<VipsBlob, BlobUnref> owner(blob);
        std::size_t size = 0;
        const auto* first = blob ? static_cast<const std::byte*>(vips_blob_get(blob, &size)) : nullptr;
        if (!first)
            return failure;
        std::vector<std::byte> bytes(first, first + size);
        if ((options.metadata && !isInsideImage(options)) || isReworked(options))
            bytes = withMetadata(options.metadata.get(), std::move(bytes), aboutFile(bitmap, options));
        storeResolution(options.format, options.dotsPerInch, bytes);
        return bytes;
    } catch (const std::exception& error) {
        imageLog(error.what());
        return failure;
    }
}
