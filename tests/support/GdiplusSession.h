#pragma once

#include "vxgui/platform/gdiplus.h"

namespace vxgui::test {

/// Keeps GDI+ started for its own length.
class GdiplusSession {
public:
    GdiplusSession() {
        const gdiplus::GdiplusStartupInput input{1, nullptr, 0, 0};
        gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~GdiplusSession() { gdiplus::GdiplusShutdown(token_); }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;

private:
    gdiplus::ULONG_PTR token_ = 0;
};

}  // namespace vxgui::test
