// What is kept of a filter's inputs and notes: pure rules.
#pragma once

#include "platform/coreimage/CIFilter.h"

struct SessionState;

/// For a favourite, with the filter's name under "class". The image that drawing replaces by the picture is left out.
CIDictionary favouriteValues(const CIFilter& filter);

/// What the user sets: pictures of their own, if they aren't `picture` and have an end, and all other values.
void saveInputs(const CIFilter& filter, const CIImage& picture, SessionState& state);
/// What isn't there stays, but for notes.
void restoreInputs(CIFilter& filter, const SessionState& state);

/// Those that a new filter has may not suit other values.
void forgetNotes(CIFilter& filter);
