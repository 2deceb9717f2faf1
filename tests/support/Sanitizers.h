#pragma once

namespace vxgui::test {

/// Whether a sanitizer's own memory, and the freed blocks that it keeps, count among the process's.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kSanitized = true;
#elif defined(__has_feature)  // clang's way to say it
constexpr bool kSanitized = __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
constexpr bool kSanitized = false;
#endif

}  // namespace vxgui::test
