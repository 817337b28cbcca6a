#include "platform/imageio/reader_process/ReaderServer.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/InputReading.h"
#include "platform/imageio/MetadataCopy.h"
#include "platform/imageio/reader_process/Channel.h"
#include "platform/imageio/reader_process/Mapping.h"
#include "platform/imageio/reader_process/Messages.h"
#include "platform/imageio/reader_process/Sandbox.h"
#include "platform/imageio/reader_process/WarmUp.h"

#include <new>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace imageio {

namespace {

using namespace std::chrono_literals;

class Server {
public:
    explicit Server(DecodePicture decode)
        : m_decode(decode)
    {
        setImageLog([this](std::string_view line) { m_channel.send(Word::Log, Parcel().putText(line)); });
    }

    void run()
    {
        warmUp([this] { return m_channel.isAwaited(); });
        std::optional<Message> file = next();
        if (!file || file->word != Word::File || !file->descriptor)
            return;
        struct stat status { };
        ::fstat(file->descriptor.number(), &status);
        const std::size_t size = std::size_t(status.st_size);
        const auto content = mapped(file->descriptor.number(), size, PROT_READ, MAP_PRIVATE);
        const Result<PictureInput> input =
            PictureInput::fromMemory({content.get(), size}, Unpacking(file->body).takeText());
        const FileFormat* const format = input ? input->format() : nullptr;
        if (format)
            warmUpFor(*format);
        closeSandbox(format && format->isDrawing ? Sight::Fonts : Sight::FileAlone, m_channel.socket());
        std::thread([this] { reportProgress(); }).detach();
        while (const std::optional<Message> question = next())
            answer(*question, input);
    }

private:
    std::optional<Message> next()
    {
        while (!m_channel.isClosed())
            if (std::optional<Message> message = m_channel.receive(1h))
                return message;
        return {};
    }

    /// Ends the process when nobody wants its answer any more.
    void reportProgress()
    {
        float told = 0;
        while (!m_channel.isLeft(40ms))
            if (const float now = m_progress; now != told)
                m_channel.send(Word::Progress, Parcel().put(told = now));
        ::_exit(0);
    }

    void answer(const Message& question, const Result<PictureInput>& input)
    {
        Parcel body;
        const std::optional<Failure> failure = answered(question, input, body);
        m_channel.send(failure ? Word::Failed : Word::Done, failure ? packed(*failure) : body);
    }

    std::optional<Failure> answered(const Message& question, const Result<PictureInput>& input, Parcel& body)
    {
        try {
            switch (question.word) {
            case Word::Picture:
                return answerPicture(question, input, body);
            case Word::Info:
                return take(imageio::readPictureInfo(input), body);
            case Word::Properties:
                return take(imageio::readPictureProperties(input), body);
            default:
                if (const auto metadata = input ? imageio::readMetadata(*input) : nullptr)
                    body.putText(imageio::packed(*metadata));
                return {};
            }
        } catch (const std::bad_alloc&) {
            return Failure{Reason::NoMemoryToOpen};
        } catch (const std::exception& error) {
            imageLog(error.what());
            return Failure{Reason::CannotOpen};
        }
    }

    template <class T>
    static std::optional<Failure> take(const Result<T>& result, Parcel& body)
    {
        if (!result)
            return result.failure();
        body = packed(*result);
        return {};
    }

    std::optional<Failure> answerPicture(const Message& question, const Result<PictureInput>& input, Parcel& body)
    {
        std::atomic<bool> isIncomplete = false;
        ReadOptions options = unpackedOptions(question.body, &isIncomplete);
        options.progress = &m_progress;
        options.memory = [this](std::size_t bytes) { return memory(bytes); };
        const Result<CIBitmap> read = m_decode(input, options);
        if (!read)
            return read.failure();
        body = packed(BitmapShape{
            read->width(), read->height(), read->format(), read->alpha(), read->colorSpace(), isIncomplete});
        return {};
    }

    std::shared_ptr<std::byte> memory(std::size_t bytes)
    {
        m_channel.send(Word::NeedsMemory, Parcel().put(std::uint64_t(bytes)));
        const std::optional<Message> given = next();
        if (!given || given->word != Word::Memory || !given->descriptor)
            throw std::bad_alloc();
        return mapped(given->descriptor.number(), bytes, PROT_READ | PROT_WRITE, MAP_SHARED);
    }

    const DecodePicture m_decode;
    Channel m_channel{Descriptor(kReaderSocket)};
    std::atomic<float> m_progress = 0;
};

/// All that the program had open when it started this.
void closeInherited()
{
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::dup2(nothing, standard);
    ::close_range(kReaderSocket + 1, ~0U, 0);
}

} // namespace

void serveReader(DecodePicture decode)
{
    closeInherited();
    limitResources();
    Server(decode).run();
    ::_exit(0); // at once: nothing here outlives the process
}

} // namespace imageio
