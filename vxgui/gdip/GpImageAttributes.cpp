#include "vxgui/gdip/GpImageAttributes.h"

namespace vxgui {
namespace {

constexpr BOOL kOn = 1, kOff = 0;

}  // namespace

GpImageAttributes::GpImageAttributes() { flat::GdipCreateImageAttributes(&handle_); }

void GpImageAttributes::SetToIdentity(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesToIdentity(handle_, ColorAdjustType);
}

void GpImageAttributes::Reset(AdjustType ColorAdjustType) {
    flat::GdipResetImageAttributes(handle_, ColorAdjustType);
}

void GpImageAttributes::SetColorMatrix(const gdiplus::ColorMatrix* ColorMatrix,
                                       const gdiplus::ColorMatrix* grayMatrix,
                                       gdiplus::ColorMatrixFlags flags,
                                       AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesColorMatrix(handle_, ColorAdjustType, kOn, ColorMatrix, grayMatrix,
                                            flags);
}

void GpImageAttributes::ClearColorMatrix(AdjustType ColorAdjustType) {
    constexpr gdiplus::ColorMatrix kZero{};
    flat::GdipSetImageAttributesColorMatrix(handle_, ColorAdjustType, kOff, &kZero, &kZero,
                                            gdiplus::ColorMatrixFlagsDefault);
}

void GpImageAttributes::SetThreshold(float threshold, AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesThreshold(handle_, ColorAdjustType, kOn, threshold);
}

void GpImageAttributes::ClearThreshold(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesThreshold(handle_, ColorAdjustType, kOff, 0);
}

void GpImageAttributes::SetGamma(float gamma, AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesGamma(handle_, ColorAdjustType, kOn, gamma);
}

void GpImageAttributes::ClearGamma(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesGamma(handle_, ColorAdjustType, kOff, 0);
}

void GpImageAttributes::SetNoOp(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesNoOp(handle_, ColorAdjustType, kOn);
}

void GpImageAttributes::ClearNoOp(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesNoOp(handle_, ColorAdjustType, kOff);
}

void GpImageAttributes::SetColorKey(gdiplus::ARGB colorLow, gdiplus::ARGB colorHigh,
                                    AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesColorKeys(handle_, ColorAdjustType, kOn, colorLow, colorHigh);
}

void GpImageAttributes::ClearColorKey(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesColorKeys(handle_, ColorAdjustType, kOff, 0, 0);
}

void GpImageAttributes::SetOutputChannel(gdiplus::ColorChannelFlags channelFlags,
                                         AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesOutputChannel(handle_, ColorAdjustType, kOn, channelFlags);
}

void GpImageAttributes::ClearOutputChannel(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesOutputChannel(handle_, ColorAdjustType, kOff,
                                              gdiplus::ColorChannelFlagsC);
}

void GpImageAttributes::SetOutputChannelColorProfile(const String& colorProfileFilename,
                                                     AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesOutputChannelColorProfile(handle_, ColorAdjustType, kOn,
                                                          colorProfileFilename.data());
}

void GpImageAttributes::ClearOutputChannelColorProfile(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesOutputChannelColorProfile(handle_, ColorAdjustType, kOff, nullptr);
}

void GpImageAttributes::SetRemapTable(uint32_t mapSize, const gdiplus::ColorMap* map,
                                      AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesRemapTable(handle_, ColorAdjustType, kOn, mapSize, map);
}

void GpImageAttributes::ClearRemapTable(AdjustType ColorAdjustType) {
    flat::GdipSetImageAttributesRemapTable(handle_, ColorAdjustType, kOff, 0, nullptr);
}

void GpImageAttributes::SetWrapMode(gdiplus::WrapMode wrap, int32_t Color, bool clamp) {
    flat::GdipSetImageAttributesWrapMode(handle_, wrap, static_cast<gdiplus::ARGB>(Color), clamp);
}

void GpImageAttributes::ICMMode(bool on) { flat::GdipSetImageAttributesICMMode(handle_, on); }

void GpImageAttributes::GetAdjustedPalette(gdiplus::ColorPalette* ColorPalette,
                                           AdjustType ColorAdjustType) {
    flat::GdipGetImageAttributesAdjustedPalette(handle_, ColorPalette, ColorAdjustType);
}

void GpImageAttributes::CachedBackground(bool enableFlag) {
    flat::GdipSetImageAttributesCachedBackground(handle_, enableFlag);
}

}  // namespace vxgui
