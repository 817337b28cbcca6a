// Why something failed, and the words for it.
#pragma once

#include <string>
#include <string_view>

enum class Reason {
    NoFile,
    IsFolder,
    NotOrdinary,
    CannotRead, // detail: the system's reason
    Empty,
    UnknownFormat,
    UnknownCamera,
    Damaged,
    TooLarge, // detail: width × height
    StrangePixels,
    CannotOpen,
    TookTooLong,
    GivenUp,
    NoMemoryToOpen,
    NothingToWrite,
    NotWritten,
    CannotWrite, // detail: the system's reason
    NoSpace,
    NotPermitted,
    ReadOnly,
    NoFolder,
    NoMemoryToSave,
};

struct Failure {
    Reason reason;
    std::string subject{}; // the file's name without its folder; empty for a picture without one
    std::string detail{}; // what the reason above says; may be empty
};

/// The English sentence for it, in which %1 stands for the subject and %2 for the detail if the failure has them. It is
/// also the key of its translations.
const char* sentenceFor(const Failure& failure);

/// The sentence, which may be a translated one, with subject and detail in their places.
std::string filledIn(std::string_view sentence, const Failure& failure);

/// For the log, and for people without a window.
std::string englishText(const Failure& failure);
