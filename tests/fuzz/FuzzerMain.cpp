// One target for libFuzzer.
#include "tests/fuzz/Targets.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    LUMIVEX_FUZZ_TARGET(std::as_bytes(std::span(data, size)));
    return 0;
}
