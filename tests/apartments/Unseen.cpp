#if defined(__SANITIZE_THREAD__)

/// Libraries that weren't built for the thread sanitizer hand blocks from thread to thread by
/// atomic words that it doesn't see, and would be reported for it; what they do is left out.
/// Everything of the project is seen. (ThreadSanitizer's documentation, "Suppressions".)
extern "C" const char* __tsan_default_suppressions() {
    return "called_from_lib:libcairo.so.2\n"
           "called_from_lib:libglib-2.0.so.0\n"
           "called_from_lib:libharfbuzz.so.0\n";
}

#endif
