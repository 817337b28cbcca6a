// A favourite of the editor, applied to many files.
#pragma once

#include "tools/lumivex-render/Arguments.h"

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// In the order of the editor's strip, all different.
std::vector<std::string> favouriteNames();

struct BatchLimits {
    unsigned workers; // files at the same time
    std::int64_t memory; // bytes for all of them together, by estimate; a file that needs more runs alone
};
/// One file for each core at most, half of the memory.
BatchLimits usualLimits();

/// What became of a file.
struct BatchReport {
    std::size_t number, count; // 1 for the first that is finished
    std::filesystem::path input, output;
    std::string failure; // empty when it was written
};

struct BatchResult {
    std::size_t failures = 0;
    bool wasStopped = false;
};

/// Applies the favourite to each file and writes it into the output folder, which is made if need be. `report` is
/// called for one file at a time, from any thread. Once `stop` is set, what is not finished is left out, without a
/// report. Throws UsageError when there is no such favourite or no such folder can be made.
BatchResult runBatch(const Arguments& arguments, const BatchLimits& limits,
    const std::function<void(const BatchReport&)>& report, const std::atomic<bool>& stop);
