#include <algorithm>

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/surface/DibInfo.h"
#include "vxgui/surface/ScratchBitmap.h"
#include "vxgui/surface/ScratchContext.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/text/WideText.h"

namespace vxgui {

namespace {

/// A colour under a coverage, premultiplied: c * (coverage + 1) / 256, truncated.
ARGB Covered(COLORREF color, uint8_t coverage) {
    const auto channel = [&](uint32_t c) {
        return static_cast<uint8_t>((c & 255) * (coverage + 1u) >> 8);
    };
    return {channel(color >> 16), channel(color >> 8), channel(color), coverage};
}

}  // namespace

int32_t cAlphaDIBSection::DrawText(const String& Text, gdi::RECT& rc, uint32_t dwFlags,
                                   int32_t Lenght) try {
    const gdi::BITMAPINFO info = DibInfo(Width(), Height());
    const ScratchContext scratch(compatibleDC_);
    if (!scratch) return 0;
    const ScratchBitmap bitmap(scratch.get(), info);
    if (!bitmap.handle()) return 0;
    const ScopedSelection canvas(scratch.get(), bitmap.handle());
    const ScopedSelection font(scratch.get(), gdi::GetCurrentObject(hDC_, gdi::OBJ_FONT));
    // White on the clear ground of a new bitmap: a background would count as text.
    gdi::SetTextColor(scratch.get(), 0xFFFFFF);
    gdi::SetBkMode(scratch.get(), gdi::TRANSPARENT);
    const int32_t result = DrawTextWide(scratch.get(), Text, Lenght, rc, dwFlags);
    gdi::GdiFlush();
    const COLORREF color = gdi::GetTextColor(hDC_);
    const auto* coverage = static_cast<const ARGB*>(bitmap.bits());
    for (ARGB& pixel : Pixels()) {
        if (const uint8_t covered = (coverage++)->Blue) pixel = Covered(color, covered);
    }
    return result;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.DrawText");
}

}  // namespace vxgui
