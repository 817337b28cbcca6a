// What AddressSanitizer should know about the libraries that decode: two of them lose a little memory on broken files.
// Whole call stacks are needed to tell their leaks from ours.

extern "C" const char* __asan_default_options();
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __asan_default_options() { return "fast_unwind_on_malloc=0"; }

extern "C" const char* __lsan_default_suppressions() { return "leak:vips_openexrload\nleak:xmlParseEntityValue\n"; }
