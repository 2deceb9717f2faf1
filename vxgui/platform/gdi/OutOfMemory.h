#pragma once

#include <new>

namespace vxgui::gdi {

/// Runs the body of a drawing function, which answers `failure` when memory runs out in it: the
/// published functions raise nothing.
template <class Answer, class Body>
Answer OrOutOfMemory(Answer failure, Body&& body) noexcept {
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return failure;
    }
}

}  // namespace vxgui::gdi
