#pragma once

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// A 32-bit bitmap for the length of a scope.
class ScratchBitmap {
public:
    ScratchBitmap(gdi::HDC dc, const gdi::BITMAPINFO& info)
        : handle_(gdi::CreateDIBSection(dc, &info, gdi::DIB_RGB_COLORS, &bits_, nullptr, 0)) {}
    ~ScratchBitmap() {
        if (handle_) gdi::DeleteObject(handle_);
    }
    ScratchBitmap(const ScratchBitmap&) = delete;
    ScratchBitmap& operator=(const ScratchBitmap&) = delete;

    gdi::HBITMAP handle() const { return handle_; }
    void* bits() const { return bits_; }

private:
    void* bits_ = nullptr;
    gdi::HBITMAP handle_;
};

}  // namespace vxgui
