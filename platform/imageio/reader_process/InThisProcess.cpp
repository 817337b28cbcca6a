// Stands in for reading processes on systems that have none.
#include "platform/imageio/InputReading.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <vector>

using namespace imageio;

struct ReaderProcess::Reading {
    std::vector<std::byte> content; // of bytes without a file
    Result<PictureInput> input;
};

ReaderProcess::ReaderProcess(const std::filesystem::path& file)
    : m_reading(new Reading{{}, PictureInput::fromFile(file)})
{
}

ReaderProcess::ReaderProcess(std::span<const std::byte> content)
    : m_reading(new Reading{{content.begin(), content.end()}, Failure{Reason::Empty}})
{
    m_reading->input = PictureInput::fromMemory(m_reading->content);
}

ReaderProcess::~ReaderProcess() = default;
ReaderProcess::ReaderProcess(ReaderProcess&&) noexcept = default;

Result<CIBitmap> ReaderProcess::readPicture(const ReadOptions& options)
{
    return imageio::readPicture(m_reading->input, options);
}

Result<PictureInfo> ReaderProcess::readInfo() { return imageio::readPictureInfo(m_reading->input); }

Result<PictureFileProperties> ReaderProcess::readProperties()
{
    return imageio::readPictureProperties(m_reading->input);
}

std::shared_ptr<const PictureMetadata> ReaderProcess::readMetadata()
{
    return m_reading->input ? imageio::readMetadata(*m_reading->input) : nullptr;
}

void ReaderProcess::prepare() { }

void ReaderProcess::setProgram(const std::filesystem::path&) { }
