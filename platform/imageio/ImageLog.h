// Where reading and writing of pictures reports what a user need not see.
#pragma once

#include <functional>
#include <string_view>

/// Every failure and every oddity of a file becomes one line for `receiver`, which may be called from any thread.
/// Without one, lines go to standard error.
void setImageLog(std::function<void(std::string_view line)> receiver);

void imageLog(std::string_view line);
