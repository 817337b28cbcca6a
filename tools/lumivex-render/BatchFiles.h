// Which file of a batch goes where, and how much memory it takes on the way.
#pragma once

#include "platform/imageio/PictureWriter.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <cstdint>
#include <filesystem>
#include <set>
#include <utility>
#include <vector>

struct BatchFile {
    std::filesystem::path input, output;
    PictureFormat format = PictureFormat::Png;
    std::int64_t memory = 0; // bytes, about
    std::shared_ptr<ReaderProcess> reader{}; // of the input
};

/// Hands out the targets. One thread at a time.
class BatchFiles {
public:
    BatchFiles(const std::vector<std::string>& inputs, std::filesystem::path folder);

    /// Where the file goes. Throws std::runtime_error when it is no picture, or when its target is one of the inputs or
    /// was given to another file.
    BatchFile plan(const std::filesystem::path& input);

private:
    using FileIdentity = std::pair<std::uintmax_t, std::uintmax_t>; // device and file number
    static bool identify(const std::filesystem::path& file, FileIdentity& identity);

    std::filesystem::path m_folder;
    std::set<FileIdentity> m_inputs;
    std::set<std::filesystem::path> m_taken;
};
