// Favourites that come with the program: filters with values that make a look.
#pragma once

#include "platform/chain/FilterSettings.h"
#include "platform/coreimage/CIImage.h"

#include <QString>

#include <span>

/// A filter, and what its inputs hold on a picture of any size.
struct PictureLook {
    const char* name; // English, of the context "Look"
    const char* description; // a sentence, of the same context
    const char* searchWords; // separated by ", ", of the same context
    const char* filter; // its class
    CIDictionary (*values)(const CIImage& picture); // of the inputs that are neither standard nor fitted to the picture
};

std::span<const PictureLook> looks();
/// Null when there is none of that name.
const PictureLook* lookNamed(const std::string& name);

/// A name, description or search words in the user's language.
QString shownLookText(const char* text);

/// The look's filter with all its inputs, for that picture. Nothing for a picture whose extent is empty or infinite.
FilterSettings settingsOf(const PictureLook& look, const CIImage& picture);
