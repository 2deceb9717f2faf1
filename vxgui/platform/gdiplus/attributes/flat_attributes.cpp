#include "vxgui/platform/gdiplus/attributes/AttributesCall.h"
#include "vxgui/platform/gdiplus_attributes.h"

namespace vxgui::gdiplus {
namespace {

// The settings are a value; the object around them isn't.
Ref<ImageAttributes> CopyOf(const ImageAttributes& from) {
    Ref<ImageAttributes> copy = New<ImageAttributes>();
    copy->adjustments = from.adjustments;
    copy->wrap = from.wrap;
    copy->outside = from.outside;
    copy->wrapSet = from.wrapSet;
    copy->icmMode = from.icmMode;
    copy->cachedBackground = from.cachedBackground;
    return copy;
}

}  // namespace

extern "C" {

GpStatus GdipCreateImageAttributes(GpImageAttributes** imageattr) {
    return FlatCreate(imageattr, [&] { return HandOut(imageattr, New<ImageAttributes>()); });
}

GpStatus GdipCloneImageAttributes(const GpImageAttributes* imageattr,
                                  GpImageAttributes** cloneImageattr) {
    return FlatCreate(cloneImageattr, [&] {
        return FlatOn<ImageAttributes>(imageattr, [&](ImageAttributes& found) {
            return HandOut(cloneImageattr, CopyOf(found));
        });
    });
}

GpStatus GdipDisposeImageAttributes(GpImageAttributes* imageattr) {
    return FlatOn<ImageAttributes>(imageattr, [&](ImageAttributes&) {
        return RetireObject(imageattr) ? Ok : InvalidParameter;
    });
}

GpStatus GdipSetImageAttributesToIdentity(GpImageAttributes* imageattr, ColorAdjustType type) {
    return OnType(imageattr, type, [](auto& own) { own = ColorAdjustment{}; });
}

GpStatus GdipResetImageAttributes(GpImageAttributes* imageattr, ColorAdjustType type) {
    return OnType(imageattr, type, [](auto& own) { own.reset(); });
}

GpStatus GdipSetImageAttributesWrapMode(GpImageAttributes* imageAttr, WrapMode wrap, ARGB argb,
                                        BOOL) {
    return FlatOn<ImageAttributes>(imageAttr, [&](ImageAttributes& found) {
        if (wrap < WrapModeTile || wrap > WrapModeClamp) return InvalidParameter;
        found.wrap = wrap;
        found.outside = argb;
        found.wrapSet = true;
        return Ok;
    });
}

GpStatus GdipSetImageAttributesICMMode(GpImageAttributes* imageAttr, BOOL on) {
    return FlatSet<ImageAttributes>(imageAttr, [&](auto& found) { found.icmMode = on != 0; });
}

GpStatus GdipSetImageAttributesCachedBackground(GpImageAttributes* imageattr, BOOL enableFlag) {
    return FlatSet<ImageAttributes>(imageattr,
                                    [&](auto& found) { found.cachedBackground = enableFlag != 0; });
}

GpStatus GdipGetImageAttributesAdjustedPalette(GpImageAttributes* imageAttr,
                                               ColorPalette* colorPalette,
                                               ColorAdjustType colorAdjustType) {
    return FlatOn<ImageAttributes>(imageAttr, [&](ImageAttributes& found) {
        if (!colorPalette || !IsType(colorAdjustType)) return InvalidParameter;
        const ColorAdjustment* adjustment = found.For(colorAdjustType);
        if (adjustment) Adjust(*adjustment, {colorPalette->Entries, colorPalette->Count});
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
