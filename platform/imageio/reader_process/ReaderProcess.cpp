#include "platform/imageio/reader_process/ReaderProcess.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/MetadataCopy.h"
#include "platform/imageio/PictureInput.h"
#include "platform/imageio/PictureSink.h"
#include "platform/imageio/reader_process/Helper.h"
#include "platform/imageio/reader_process/Mapping.h"
#include "platform/imageio/reader_process/Messages.h"

#include <fcntl.h>
#include <unistd.h>

using namespace imageio;

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kSpare = 64; // bytes that may be read past the end of a bitmap

/// A file in memory, for others to write into or to read.
Descriptor memoryFile(std::size_t bytes)
{
    Descriptor file(::memfd_create("lumivex picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    return file && ::ftruncate(file.number(), off_t(bytes)) == 0 ? std::move(file) : Descriptor();
}

Descriptor copyOf(std::span<const std::byte> content)
{
    Descriptor file = memoryFile(0);
    while (file && !content.empty()) {
        const ssize_t written = ::write(file.number(), content.data(), content.size());
        if (written <= 0)
            return Descriptor();
        content = content.subspan(std::size_t(written));
    }
    return file;
}

/// Null when the reader could still change the pixels, or they aren't there.
CIBitmap sealedBitmap(const Descriptor& pixels, std::size_t bytes, const BitmapShape& shape)
{
    constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
    if (!pixels || shape.bytes() != bytes || ::fcntl(pixels.number(), F_ADD_SEALS, kSeals) != 0)
        return {};
    const auto start = mapped(pixels.number(), bytes + kSpare, PROT_READ, MAP_PRIVATE);
    return {start.get(), shape.width, shape.height, bytes / std::size_t(shape.height), shape.format, shape.alpha,
        shape.space, start};
}

} // namespace

struct ReaderProcess::Reading {
    Reading(std::filesystem::path from, Result<PictureInput> opened, Descriptor copied)
        : file(std::move(from))
        , input(std::move(opened))
        , copy(std::move(copied))
    {
    }

    /// What `unpack` makes of the answer.
    template <class T>
    Result<T> ask(Word question, const ReadOptions& options, const std::function<Result<T>(std::string_view)>& unpack)
    {
        if (!input)
            return input.failure();
        if (!input->format())
            return input->failure(Reason::UnknownFormat);
        if (!isStarted && !start())
            return input->failure(Reason::CannotOpen);
        try {
            const Result<std::string> answer = helper ? answerTo(question, options) : given(Reason::Damaged);
            return answer ? unpack(*answer) : Result<T>(answer.failure());
        } catch (const std::runtime_error& error) {
            imageLog(input->name() + ": its reader answered " + error.what());
            return input->failure(Reason::Damaged);
        }
    }

    Result<CIBitmap> bitmapOf(const BitmapShape& shape) const
    {
        CIBitmap bitmap = sealedBitmap(pixels, pixelBytes, shape);
        if (bitmap.isNull())
            throw std::runtime_error("with other pixels than it announced");
        return bitmap;
    }

    const std::filesystem::path file;
    const Result<PictureInput> input;

private:
    bool start()
    {
        helper = Helper::take();
        isStarted = helper != nullptr;
        return isStarted
            && helper->channel.send(
                Word::File, Parcel().putText(input->name()), copy ? copy.number() : input->descriptor());
    }

    Result<std::string> given(Reason reason) { return input->failure(reason); }

    Result<std::string> answerTo(Word question, const ReadOptions& options)
    {
        constexpr auto kGrace = 3s; // the reader keeps the limit itself as long as it can
        const auto deadline = std::chrono::steady_clock::now() + options.timeLimit + kGrace;
        const auto isCancelled = [&] {
            return options.cancelled && options.cancelled->load(std::memory_order_relaxed);
        };
        helper->channel.send(question, packed(options));
        while (!helper->channel.isClosed() && !isCancelled() && std::chrono::steady_clock::now() < deadline)
            if (const std::optional<Message> message = helper->channel.receive(20ms))
                if (auto answer = heed(*message, options))
                    return *std::move(answer);
        helper = nullptr;
        if (isCancelled())
            return given(Reason::GivenUp);
        imageLog(input->name() + ": its reader died or hangs.");
        return given(Reason::Damaged);
    }

    /// The answer, if that is one.
    std::optional<Result<std::string>> heed(const Message& message, const ReadOptions& options)
    {
        switch (message.word) {
        case Word::Progress:
            if (options.progress)
                options.progress->store(Unpacking(message.body).take<float>(), std::memory_order_relaxed);
            return {};
        case Word::Log:
            imageLog(Unpacking(message.body).takeText());
            return {};
        case Word::NeedsMemory:
            giveMemory(Unpacking(message.body).take<std::uint64_t>(), options);
            return {};
        case Word::Failed:
            return unpackedFailure(message.body, input->name());
        case Word::Done:
            return message.body;
        default:
            return {};
        }
    }

    void giveMemory(std::uint64_t bytes, const ReadOptions& options)
    {
        pixelBytes = bytes;
        pixels = bytes <= std::uint64_t(options.maxBytes) ? memoryFile(bytes + kSpare) : Descriptor();
        helper->channel.send(Word::Memory, {}, pixels.number());
    }

    Descriptor copy; // of bytes that came without a file
    std::unique_ptr<Helper> helper; // null before it is started, and when it is lost
    bool isStarted = false;
    Descriptor pixels;
    std::size_t pixelBytes = 0;
};

namespace {

const ReadOptions kForHeaders{.timeLimit = 20s};

} // namespace

ReaderProcess::ReaderProcess(const std::filesystem::path& file)
    : m_reading(std::make_unique<Reading>(file, PictureInput::fromFile(file), Descriptor()))
{
}

ReaderProcess::ReaderProcess(std::span<const std::byte> content)
    : m_reading(std::make_unique<Reading>("", PictureInput::fromMemory(content), copyOf(content)))
{
}

ReaderProcess::~ReaderProcess()
{
    if (m_reading) {
        m_reading = nullptr;
        prepare();
    }
}

ReaderProcess::ReaderProcess(ReaderProcess&&) noexcept = default;

Result<CIBitmap> ReaderProcess::readPicture(const ReadOptions& options)
{
    ReadOptions limited = options;
    limited.maxBytes = mostBytes(options);
    return m_reading->ask<CIBitmap>(Word::Picture, limited, [this, &options](std::string_view answer) {
        const BitmapShape shape = unpackedShape(answer);
        if (options.isIncomplete && shape.isIncomplete)
            *options.isIncomplete = true;
        return m_reading->bitmapOf(shape);
    });
}

Result<PictureInfo> ReaderProcess::readInfo()
{
    return m_reading->ask<PictureInfo>(Word::Info, kForHeaders, unpackedInfo);
}

Result<PictureFileProperties> ReaderProcess::readProperties()
{
    return m_reading->ask<PictureFileProperties>(Word::Properties, kForHeaders, unpackedProperties);
}

std::shared_ptr<const PictureMetadata> ReaderProcess::readMetadata()
{
    using Metadata = std::shared_ptr<const PictureMetadata>;
    const auto unpack = [this](std::string_view answer) -> Metadata {
        return answer.empty() ? nullptr : unpackedMetadata(m_reading->file, Unpacking(answer).takeText());
    };
    const Result<Metadata> read = m_reading->ask<Metadata>(Word::Metadata, kForHeaders, unpack);
    return read ? *read : nullptr;
}

void ReaderProcess::prepare() { Helper::prepareNext(); }

void ReaderProcess::setProgram(const std::filesystem::path& program) { Helper::setProgram(program); }
