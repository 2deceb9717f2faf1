#pragma once

#include <string>

#include "vxgui/base/Error.h"

/// Where the library's errors become a result and a text.
namespace vxgui::c {

const char* LastError() noexcept;
/// Keeps a text for the calling thread.
void KeepError(const std::string& text) noexcept;
/// Keeps what the exception that is being handled says.
void KeepCurrentException() noexcept;

[[noreturn]] inline void Refuse(const String& text) {
    throw Error(ErrorNumber::InvalidCall, {}, "error: " + text);
}

/// `handle`, which must not be null; `source` says where the caller gets one.
template <class Handle>
Handle& Required(Handle* handle, const char* source) {
    if (!handle) Refuse(String("NULL was given; ") + source + " was expected");
    return *handle;
}

/// Does the work of an interface function in a thread that is set up for the library; answers
/// `failed`, with the reason kept, when that throws.
template <class Result, class Work>
Result Guarded(Result failed, Work work) noexcept {
    try {
        return work();
    } catch (...) {
        KeepCurrentException();
        return failed;
    }
}

}  // namespace vxgui::c
