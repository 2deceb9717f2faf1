#pragma once

#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/gdiplus/FlatObject.h"

namespace vxgui::gdiplus {

/// Makes the objects of text, and deletes them at the end.
class StringFixture : public testing::Test {
public:
    ~StringFixture() override;

    GpFontFamily* Family(const char16_t* name = u"DejaVu Sans");
    GpFont* MakeFont(REAL size, INT style = 0, Unit unit = UnitPixel,
                     const char16_t* name = u"DejaVu Sans");
    /// A copy of the generic default format, or of the typographic one.
    GpStringFormat* Default();
    GpStringFormat* Typographic();

    /// Is deleted at the end.
    template <class T>
    T* Keep(T* made) {
        made_.push_back(made);
        return made;
    }

    test::GdiplusSession session_;

private:
    std::vector<void*> made_;
};

/// What no function takes: nothing, a number that was never a handle, and an object of another
/// kind. `other` is a live handle of another kind.
template <class T>
std::vector<T*> WrongHandles(void* other) {
    static char forged;
    return {nullptr, reinterpret_cast<T*>(&forged), static_cast<T*>(other)};
}

}  // namespace vxgui::gdiplus
