#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Image attributes: what happens to the colours of an image that is drawn.
namespace vxgui::gdiplus {

extern "C" {

VXPLATFORM_API GpStatus GdipCreateImageAttributes(GpImageAttributes** imageattr);
VXPLATFORM_API GpStatus GdipCloneImageAttributes(const GpImageAttributes* imageattr,
                                                 GpImageAttributes** cloneImageattr);
VXPLATFORM_API GpStatus GdipDisposeImageAttributes(GpImageAttributes* imageattr);

/// Gives a type a setting of its own that changes no colour.
VXPLATFORM_API GpStatus GdipSetImageAttributesToIdentity(GpImageAttributes* imageattr,
                                                         ColorAdjustType type);
/// Takes a type's own settings away, so that those of `ColorAdjustTypeDefault` apply.
VXPLATFORM_API GpStatus GdipResetImageAttributes(GpImageAttributes* imageattr,
                                                 ColorAdjustType type);

/// The setters of one step: with `enableFlag` 0 they take the step away, and their values don't
/// count. A type whose last step went has no settings of its own any more.
VXPLATFORM_API GpStatus GdipSetImageAttributesColorMatrix(GpImageAttributes* imageattr,
                                                          ColorAdjustType type, BOOL enableFlag,
                                                          const ColorMatrix* colorMatrix,
                                                          const ColorMatrix* grayMatrix,
                                                          ColorMatrixFlags flags);
/// A channel above the share `threshold` of full becomes full, any other 0.
VXPLATFORM_API GpStatus GdipSetImageAttributesThreshold(GpImageAttributes* imageattr,
                                                        ColorAdjustType type, BOOL enableFlag,
                                                        REAL threshold);
VXPLATFORM_API GpStatus GdipSetImageAttributesGamma(GpImageAttributes* imageattr,
                                                    ColorAdjustType type, BOOL enableFlag,
                                                    REAL gamma);
VXPLATFORM_API GpStatus GdipSetImageAttributesNoOp(GpImageAttributes* imageattr,
                                                   ColorAdjustType type, BOOL enableFlag);
/// Colours between the two, each channel for itself and ends included, become clear.
VXPLATFORM_API GpStatus GdipSetImageAttributesColorKeys(GpImageAttributes* imageattr,
                                                        ColorAdjustType type, BOOL enableFlag,
                                                        ARGB colorLow, ARGB colorHigh);
VXPLATFORM_API GpStatus GdipSetImageAttributesOutputChannel(GpImageAttributes* imageattr,
                                                            ColorAdjustType type, BOOL enableFlag,
                                                            ColorChannelFlags channelFlags);
VXPLATFORM_API GpStatus
GdipSetImageAttributesOutputChannelColorProfile(GpImageAttributes* imageattr, ColorAdjustType type,
                                                BOOL enableFlag, const WCHAR* colorProfileFilename);
/// Replaces exact colours, alpha included. Of two entries for one colour the first counts.
VXPLATFORM_API GpStatus GdipSetImageAttributesRemapTable(GpImageAttributes* imageattr,
                                                         ColorAdjustType type, BOOL enableFlag,
                                                         UINT mapSize, const ColorMap* map);

/// What lies beyond an image that is drawn. `clamp` has no effect, as published.
VXPLATFORM_API GpStatus GdipSetImageAttributesWrapMode(GpImageAttributes* imageAttr, WrapMode wrap,
                                                       ARGB argb, BOOL clamp);
VXPLATFORM_API GpStatus GdipSetImageAttributesICMMode(GpImageAttributes* imageAttr, BOOL on);
VXPLATFORM_API GpStatus GdipSetImageAttributesCachedBackground(GpImageAttributes* imageattr,
                                                               BOOL enableFlag);
/// Adjusts the entries of a palette in place.
VXPLATFORM_API GpStatus GdipGetImageAttributesAdjustedPalette(GpImageAttributes* imageAttr,
                                                              ColorPalette* colorPalette,
                                                              ColorAdjustType colorAdjustType);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_ATTRIBUTES(X)                    \
    X(GdipCloneImageAttributes)                        \
    X(GdipCreateImageAttributes)                       \
    X(GdipDisposeImageAttributes)                      \
    X(GdipGetImageAttributesAdjustedPalette)           \
    X(GdipResetImageAttributes)                        \
    X(GdipSetImageAttributesCachedBackground)          \
    X(GdipSetImageAttributesColorKeys)                 \
    X(GdipSetImageAttributesColorMatrix)               \
    X(GdipSetImageAttributesGamma)                     \
    X(GdipSetImageAttributesICMMode)                   \
    X(GdipSetImageAttributesNoOp)                      \
    X(GdipSetImageAttributesOutputChannel)             \
    X(GdipSetImageAttributesOutputChannelColorProfile) \
    X(GdipSetImageAttributesRemapTable)                \
    X(GdipSetImageAttributesThreshold)                 \
    X(GdipSetImageAttributesToIdentity)                \
    X(GdipSetImageAttributesWrapMode)
