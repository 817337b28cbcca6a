// Reads picture files in a process of their own.
#pragma once

#include "platform/imageio/PictureMetadata.h"
#include "platform/imageio/PictureProperties.h"
#include "platform/imageio/PictureReader.h"

#include <filesystem>
#include <memory>
#include <span>

/// One picture file, which the program `lumivex-read` reads: it sees nothing but this file, has limits, and may die or
/// hang without harm; the file is damaged then. Not for several threads at once; several readers are. Where there are
/// no such processes (another system than Linux), the file is read in this one.
class ReaderProcess {
public:
    explicit ReaderProcess(const std::filesystem::path& file);
    /// Of bytes that are copied.
    explicit ReaderProcess(std::span<const std::byte> content);
    ~ReaderProcess();
    ReaderProcess(ReaderProcess&&) noexcept;

    // Each as the function of PictureReader.h, PictureProperties.h or PictureMetadata.h for the file. Pixels are in
    // memory that the reader has filled, and that nobody can change any more; `ReadOptions::memory` is ignored.
    Result<CIBitmap> readPicture(const ReadOptions& = {});
    Result<PictureInfo> readInfo();
    Result<PictureFileProperties> readProperties();
    std::shared_ptr<const PictureMetadata> readMetadata();

    /// Starts a process ahead of need, so that the next file finds it ready. Each reader that ends does so, too.
    static void prepare();

    /// The program to be started. It is looked for beside this one and in the folder of helper programs otherwise.
    static void setProgram(const std::filesystem::path& program);

private:
    struct Reading;
    std::unique_ptr<Reading> m_reading;
};
