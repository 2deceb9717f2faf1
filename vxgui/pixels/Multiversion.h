#pragma once

/// Marks a pixel loop of which the compiler makes one version for each instruction set; the
/// best that the machine has is picked when the library is loaded. For functions of one source
/// file only: compilers disagree on the names of the versions, and some take the mark for nothing
/// on a function that was declared before without it. The resolvers run before a sanitizer is
/// ready, so builds with one have the plain version alone.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || \
    __has_feature(memory_sanitizer)
#define VXGUI_SANITIZED 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VXGUI_SANITIZED 1
#endif

#if defined(__x86_64__) && defined(__gnu_linux__) && defined(__OPTIMIZE__) && \
    !defined(VXGUI_SANITIZED)
#define VXGUI_MULTIVERSION __attribute__((target_clones("default", "avx2", "arch=x86-64-v4")))
#else
#define VXGUI_MULTIVERSION
#endif
