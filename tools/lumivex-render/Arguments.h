// The command line of lumivex-render.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A mistake of the caller; the text is one line that says which.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Task { Help, Version, List, Describe, Render, ListFavourites, Batch };

struct Arguments {
    Task task = Task::Help;
    std::string filter;
    std::vector<std::pair<std::string, std::string>> values; // key and text, in the order given
    std::vector<std::pair<std::string, std::string>> images; // key and file
    std::optional<CIRect> rect; // picture pixels
    double scale = 1;
    bool isFitted = false; // inputs that aren't set suit the picture
    int repeat = 0; // timed renders; 0 times none
    std::string output; // may be empty when only times are wanted; the folder of a batch
    std::string favourite; // of a batch
    std::vector<std::string> files; // of a batch
    bool isQuiet = false; // a batch tells only what went wrong
};

/// Throws UsageError for an unknown option, a missing or a malformed value.
Arguments parseArguments(const std::vector<std::string>& words);

/// The whole text as finite numbers with commas between them, or nothing.
std::optional<std::vector<double>> parseNumbers(std::string_view text);

std::string usageText();
