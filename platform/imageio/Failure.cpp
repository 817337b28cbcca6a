#include "platform/imageio/Failure.h"

#include <algorithm>
#include <iterator>
#include <string_view>

// The translators' tool finds its texts by the name of this macro.
#define QT_TRANSLATE_NOOP(context, text) text

namespace {

struct Sentence {
    Reason reason;
    const char* text;
};

/// Of each reason, those that say more come first.
constexpr Sentence kSentences[] = {
    {Reason::NoFile, QT_TRANSLATE_NOOP("PictureMessage", "There is no file “%1”.")},
    {Reason::NoFile, QT_TRANSLATE_NOOP("PictureMessage", "There is no such file.")},
    {Reason::IsFolder, QT_TRANSLATE_NOOP("PictureMessage", "“%1” is a folder, not a picture.")},
    {Reason::IsFolder, QT_TRANSLATE_NOOP("PictureMessage", "A folder is not a picture.")},
    {Reason::NotOrdinary, QT_TRANSLATE_NOOP("PictureMessage", "“%1” is not an ordinary file.")},
    {Reason::NotOrdinary, QT_TRANSLATE_NOOP("PictureMessage", "It is not an ordinary file.")},
    {Reason::CannotRead, QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be read: %2.")},
    {Reason::CannotRead, QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be read.")},
    {Reason::CannotRead, QT_TRANSLATE_NOOP("PictureMessage", "The picture can't be read.")},
    {Reason::Empty, QT_TRANSLATE_NOOP("PictureMessage", "“%1” is empty.")},
    {Reason::Empty, QT_TRANSLATE_NOOP("PictureMessage", "The picture is empty.")},
    {Reason::UnknownFormat, QT_TRANSLATE_NOOP("PictureMessage", "“%1” is not a picture of a kind that can be opened.")},
    {Reason::UnknownFormat, QT_TRANSLATE_NOOP("PictureMessage", "It is not a picture of a kind that can be opened.")},
    {Reason::UnknownCamera,
        QT_TRANSLATE_NOOP("PictureMessage", "“%1” comes from a camera whose raw format is not known.")},
    {Reason::UnknownCamera,
        QT_TRANSLATE_NOOP("PictureMessage", "The picture comes from a camera whose raw format is not known.")},
    {Reason::Damaged, QT_TRANSLATE_NOOP("PictureMessage", "“%1” is damaged or incomplete, so it can't be opened.")},
    {Reason::Damaged,
        QT_TRANSLATE_NOOP("PictureMessage", "The picture is damaged or incomplete, so it can't be opened.")},
    {Reason::TooLarge, QT_TRANSLATE_NOOP("PictureMessage", "“%1” is too large to be opened: %2 pixels.")},
    {Reason::TooLarge, QT_TRANSLATE_NOOP("PictureMessage", "“%1” is too large to be opened.")},
    {Reason::TooLarge, QT_TRANSLATE_NOOP("PictureMessage", "The picture is too large to be opened: %2 pixels.")},
    {Reason::TooLarge, QT_TRANSLATE_NOOP("PictureMessage", "The picture is too large to be opened.")},
    {Reason::StrangePixels, QT_TRANSLATE_NOOP("PictureMessage", "“%1” has a kind of pixel that can't be shown.")},
    {Reason::StrangePixels,
        QT_TRANSLATE_NOOP("PictureMessage", "The picture has a kind of pixel that can't be shown.")},
    {Reason::CannotOpen, QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be opened.")},
    {Reason::CannotOpen, QT_TRANSLATE_NOOP("PictureMessage", "The picture can't be opened.")},
    {Reason::TookTooLong, QT_TRANSLATE_NOOP("PictureMessage", "Opening “%1” took too long.")},
    {Reason::TookTooLong, QT_TRANSLATE_NOOP("PictureMessage", "Opening the picture took too long.")},
    {Reason::GivenUp, QT_TRANSLATE_NOOP("PictureMessage", "Opening “%1” was given up.")},
    {Reason::GivenUp, QT_TRANSLATE_NOOP("PictureMessage", "Opening the picture was given up.")},
    {Reason::NoMemoryToOpen, QT_TRANSLATE_NOOP("PictureMessage", "There is not enough memory to open “%1”.")},
    {Reason::NoMemoryToOpen, QT_TRANSLATE_NOOP("PictureMessage", "There is not enough memory to open the picture.")},
    {Reason::NothingToWrite, QT_TRANSLATE_NOOP("PictureMessage", "There is no picture to write.")},
    {Reason::NotWritten, QT_TRANSLATE_NOOP("PictureMessage", "The picture was not written.")},
    {Reason::CannotWrite, QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be written: %2.")},
    {Reason::CannotWrite, QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be written.")},
    {Reason::CannotWrite, QT_TRANSLATE_NOOP("PictureMessage", "The picture can't be written.")},
    {Reason::NoSpace,
        QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be written: there is no space left on the disk.")},
    {Reason::NoSpace, QT_TRANSLATE_NOOP("PictureMessage", "There is no space left on the disk.")},
    {Reason::NotPermitted,
        QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be written: you may not write into this folder.")},
    {Reason::NotPermitted, QT_TRANSLATE_NOOP("PictureMessage", "You may not write into this folder.")},
    {Reason::ReadOnly, QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be written: the disk is read-only.")},
    {Reason::ReadOnly, QT_TRANSLATE_NOOP("PictureMessage", "The disk is read-only.")},
    {Reason::NoFolder, QT_TRANSLATE_NOOP("PictureMessage", "“%1” can't be written: there is no such folder.")},
    {Reason::NoFolder, QT_TRANSLATE_NOOP("PictureMessage", "There is no folder of that name.")},
    {Reason::NoMemoryToSave, QT_TRANSLATE_NOOP("PictureMessage", "There was not enough memory to save the picture.")},
};

bool canBeFilled(std::string_view text, const Failure& failure)
{
    return (text.find("%1") == text.npos || !failure.subject.empty())
        && (text.find("%2") == text.npos || !failure.detail.empty());
}

} // namespace

const char* sentenceFor(const Failure& failure)
{
    const auto found = std::ranges::find_if(kSentences, [&](const Sentence& sentence) {
        return sentence.reason == failure.reason && canBeFilled(sentence.text, failure);
    });
    return found == std::end(kSentences) ? "" : found->text;
}

std::string filledIn(std::string_view sentence, const Failure& failure)
{
    std::string text;
    for (; !sentence.empty(); sentence.remove_prefix(1)) {
        const bool isSubject = sentence.starts_with("%1");
        if (!isSubject && !sentence.starts_with("%2")) {
            text += sentence.front();
            continue;
        }
        text += isSubject ? failure.subject : failure.detail;
        sentence.remove_prefix(1);
    }
    return text;
}

std::string englishText(const Failure& failure) { return filledIn(sentenceFor(failure), failure); }
