// How much memory there is.
#pragma once

#include <cstdint>

#include <unistd.h>

/// Bytes of memory that the computer has.
inline std::int64_t physicalMemory() { return std::int64_t(::sysconf(_SC_PHYS_PAGES)) * ::sysconf(_SC_PAGESIZE); }
