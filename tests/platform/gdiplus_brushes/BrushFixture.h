#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/GdiplusSession.h"
#include "tests/support/Golden.h"
#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::test {

/// A GDI+ session that deletes the brushes which a test made, and paints with them.
class BrushFixture : public testing::Test {
protected:
    ~BrushFixture() override {
        for (gdiplus::GpBrush* brush : made_) gdiplus::GdipDeleteBrush(brush);
    }

    gdiplus::GpBrush* Keep(gdiplus::GpBrush* brush) {
        made_.push_back(brush);
        return brush;
    }

    /// A picture filled with the brush, premultiplied, without antialiasing.
    static TestPicture Paint(gdiplus::GpBrush* brush, int width, int height,
                             const gdiplus::Affine& world = {}, gdiplus::GpPoint origin = {0, 0});

    GdiplusSession session_;

private:
    std::vector<gdiplus::GpBrush*> made_;
};

}  // namespace vxgui::test
