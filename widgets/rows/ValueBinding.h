// What a row of a panel shows and changes.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <functional>

/// A value somewhere: an input of a filter, a parameter of an effect, an entry of a dictionary. Functions are called on
/// the main thread as long as the row lives, some by its destructor; they hold what they need of their own.
struct ValueBinding {
    std::function<CIValue()> get;
    /// By the user: what can be undone. The value may be refused, `get` tells. The row is still there afterwards.
    std::function<void(const CIValue& value)> set;
    /// What the value was when it was new; nothing for a value that has no such.
    std::function<CIValue()> standard = [] { return CIValue(); };
    /// What is set from here to `end` is one step of undo: all of a drag, all keys until Return.
    std::function<void()> begin = [] {};
    std::function<void()> end = [] {};
    /// Shows what a value would look like, without a trace in the history. The old one is tried last, or set.
    std::function<void(const CIValue& value)> preview = [](const CIValue&) {};
};
