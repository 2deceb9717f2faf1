#pragma once

#include <string>

#include "vxgui/platform/gdiplus.h"

namespace vxgui::test {

/// A handle of that number. Nothing is behind it: only a spy takes it.
template <class T>
T* Handle(uintptr_t number) {
    return reinterpret_cast<T*>(number);
}

/// Stands in for every flat function while it lives: writes each call down and does nothing but
/// answer. Only one may live at a time.
class FlatSpy {
public:
    /// The handle that every creating function hands out.
    static constexpr uintptr_t kMade = 9;

    FlatSpy();
    ~FlatSpy();
    FlatSpy(const FlatSpy&) = delete;
    FlatSpy& operator=(const FlatSpy&) = delete;

    /// What calls answer from now on. With another status than Ok they store nothing.
    void Answer(gdiplus::Status status);
    /// From now on handles are not stored, as by stubs that find no target.
    void HandOutNothing();
    /// The number that they store for each number that they are asked for.
    void Store(int number);

    /// The calls since this was last asked, with "; " between: "GdipGetPenWidth(#1, out)". Handles
    /// are numbers behind a #, points, rectangles and other lists show their first item.
    std::string Taken();
};

}  // namespace vxgui::test
