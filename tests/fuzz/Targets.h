// What reads bytes from anywhere, each as one function: it may refuse them, and do nothing else that's wrong.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

using FuzzBytes = std::span<const std::byte>;

void fuzzPicture(FuzzBytes content); // a picture file
void fuzzMetadata(FuzzBytes content); // what such a file says about itself, shown and put into another one
void fuzzArchive(FuzzBytes content); // a value, or a list of favourites
/// Two bytes with the length of the state, the state, then a stored picture.
void fuzzJournal(FuzzBytes content);
void fuzzValues(FuzzBytes content); // words of the command line, one a line

struct FuzzTarget {
    std::string_view name;
    void (*run)(FuzzBytes);
};

inline constexpr FuzzTarget kFuzzTargets[] = {{"picture", fuzzPicture}, {"metadata", fuzzMetadata},
    {"archive", fuzzArchive}, {"journal", fuzzJournal}, {"values", fuzzValues}};

/// Sound inputs to start from.
std::vector<std::vector<std::byte>> seedsOf(std::string_view target);
