/// libFuzzer looks for leaks while caches are still full. A pattern of fontconfig finds its elements
/// by their distance instead of their address, so that they look lost while the fonts that Pango
/// keeps are in use. (LeakSanitizer's documentation, "Suppressions".)
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig.so.1\n"; }
