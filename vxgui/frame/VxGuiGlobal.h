#pragma once

#include "vxgui/base/Variant.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui {

/// The library's global object: operations that a host can call without making anything. It has
/// no state of its own.
class VXGUI_API VxGuiGlobal : public Object {
public:
    VxGuiGlobal();

    /// Whether the apartment prefers the platform's own AlphaBlend and TransparentBlt to the
    /// software blits. False makes every surface use the software blits.
    bool UseSystemAlphaAlphaBlend() const;
    void UseSystemAlphaAlphaBlend(bool value);

    /// Blends a rectangle of one context over one of another, by the blits that the switch says.
    /// Answers 0, whatever happens.
    int32_t AlphaBlend(gdi::HDC hdcDst, int32_t nXOriginDst, int32_t nYOriginDst, int32_t nWidthDst,
                       int32_t nHeightDst, gdi::HDC hdcSrc, int32_t nXOriginSrc,
                       int32_t nYOriginSrc, int32_t nWidthSrc, int32_t nHeightSrc,
                       uint8_t lConstantAlpha = 255, bool bHasAlphaChannel = true);
    /// The same, but copies what isn't of the key colour, a COLORREF.
    int32_t TransparentBlt(gdi::HDC hdcDst, int32_t nXOriginDst, int32_t nYOriginDst,
                           int32_t nWidthDst, int32_t hHeightDst, gdi::HDC hdcSrc,
                           int32_t nXOriginSrc, int32_t nYOriginSrc, int32_t nWidthSrc,
                           int32_t nHeightSrc, int32_t cTransparentColor);

    /// A command and its three operands; a failure inside is ignored, and leaves the result
    /// empty, as an unknown command does.
    ///
    /// {"LoadThemeSet", the ThemeSet, a core7::DefineFile, the folder of its pictures} fills the
    /// set and gives 0.
    Variant Execute(const VariantArray& P);

protected:
    ~VxGuiGlobal() override;
};

/// The global object of the calling apartment, which is made on first use.
VXGUI_API VxGuiGlobal& Global();

}  // namespace vxgui
