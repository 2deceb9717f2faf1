#pragma once

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// A memory context for the length of a scope. Null when the platform has none to give.
class ScratchContext {
public:
    explicit ScratchContext(gdi::HDC compatible) : dc_(gdi::CreateCompatibleDC(compatible)) {}
    ~ScratchContext() {
        if (dc_) gdi::DeleteDC(dc_);
    }
    ScratchContext(const ScratchContext&) = delete;
    ScratchContext& operator=(const ScratchContext&) = delete;

    gdi::HDC get() const { return dc_; }
    explicit operator bool() const { return dc_ != nullptr; }

private:
    gdi::HDC dc_;
};

/// Keeps an object selected in a context for the length of a scope.
class ScopedSelection {
public:
    ScopedSelection(gdi::HDC dc, gdi::HGDIOBJ object)
        : dc_(dc), old_(gdi::SelectObject(dc, object)) {}
    ~ScopedSelection() { gdi::SelectObject(dc_, old_); }
    ScopedSelection(const ScopedSelection&) = delete;
    ScopedSelection& operator=(const ScopedSelection&) = delete;

private:
    gdi::HDC dc_;
    gdi::HGDIOBJ old_;
};

}  // namespace vxgui
