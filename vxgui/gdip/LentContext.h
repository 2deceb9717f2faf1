#pragma once

#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {

/// A graphics' device context, fetched when it is first asked for and given back at the latest at
/// the end of the scope.
class LentContext {
public:
    explicit LentContext(GpGraphics& graphics) : graphics_(graphics) {}
    ~LentContext() { Release(); }
    LentContext(const LentContext&) = delete;
    LentContext& operator=(const LentContext&) = delete;

    /// Null when it can't be had.
    gdi::HDC Get() {
        if (!dc_) dc_ = graphics_.GetHDC();
        return dc_;
    }
    /// The context if it has been fetched, else null.
    gdi::HDC Held() const { return dc_; }
    void Release() {
        if (dc_) graphics_.ReleaseHDC(dc_);
        dc_ = nullptr;
    }

private:
    GpGraphics& graphics_;
    gdi::HDC dc_ = nullptr;
};

}  // namespace vxgui
