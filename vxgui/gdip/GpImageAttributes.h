#pragma once

#include "vxgui/base/String.h"
#include "vxgui/gdip/GpObject.h"

namespace vxgui {

/// What happens to the colours of an image that is drawn. A new object is usable at once.
/// Operations other than `Clone` don't look at the flat status.
class VXGUI_API GpImageAttributes : public GpOwner<GpImageAttributes, gdiplus::GpImageAttributes> {
public:
    using AdjustType = gdiplus::ColorAdjustType;
    static constexpr auto kDelete = flat::GdipDisposeImageAttributes;
    static constexpr auto kClone = flat::GdipCloneImageAttributes;
    static constexpr AdjustType kDefault = gdiplus::ColorAdjustTypeDefault;

    GpImageAttributes();

    gdiplus::GpImageAttributes* Handle() const { return handle_; }

    void SetToIdentity(AdjustType ColorAdjustType = kDefault);
    void Reset(AdjustType ColorAdjustType = kDefault);

    void SetColorMatrix(const gdiplus::ColorMatrix* ColorMatrix,
                        const gdiplus::ColorMatrix* grayMatrix = nullptr,
                        gdiplus::ColorMatrixFlags flags = gdiplus::ColorMatrixFlagsDefault,
                        AdjustType ColorAdjustType = kDefault);
    void ClearColorMatrix(AdjustType ColorAdjustType = kDefault);
    void SetThreshold(float threshold, AdjustType ColorAdjustType = kDefault);
    void ClearThreshold(AdjustType ColorAdjustType = kDefault);
    void SetGamma(float gamma, AdjustType ColorAdjustType = kDefault);
    void ClearGamma(AdjustType ColorAdjustType = kDefault);
    void SetNoOp(AdjustType ColorAdjustType = kDefault);
    void ClearNoOp(AdjustType ColorAdjustType = kDefault);
    void SetColorKey(gdiplus::ARGB colorLow, gdiplus::ARGB colorHigh,
                     AdjustType ColorAdjustType = kDefault);
    void ClearColorKey(AdjustType ColorAdjustType = kDefault);
    void SetOutputChannel(gdiplus::ColorChannelFlags channelFlags,
                          AdjustType ColorAdjustType = kDefault);
    void ClearOutputChannel(AdjustType ColorAdjustType = kDefault);
    void SetOutputChannelColorProfile(const String& colorProfileFilename,
                                      AdjustType ColorAdjustType = kDefault);
    void ClearOutputChannelColorProfile(AdjustType ColorAdjustType = kDefault);
    void SetRemapTable(uint32_t mapSize, const gdiplus::ColorMap* map,
                       AdjustType ColorAdjustType = kDefault);
    void ClearRemapTable(AdjustType ColorAdjustType = kDefault);

    void SetWrapMode(gdiplus::WrapMode wrap, int32_t Color = -16777216, bool clamp = false);
    void ICMMode(bool on);
    /// Adjusts the palette in place.
    void GetAdjustedPalette(gdiplus::ColorPalette* ColorPalette,
                            AdjustType ColorAdjustType = kDefault);
    void CachedBackground(bool enableFlag);
};

}  // namespace vxgui
