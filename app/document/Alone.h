// Work that leaves the other cores free.
#pragma once

#include <functional>

/// Runs the work on this thread only, whatever it would share out.
void runAlone(const std::function<void()>& work);
