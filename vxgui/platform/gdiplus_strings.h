#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// String formats, and the drawing and measuring of strings.
namespace vxgui::gdiplus {

extern "C" {

/// `formatAttributes` is of `StringFormatFlags`.
VXPLATFORM_API GpStatus GdipCreateStringFormat(INT formatAttributes, LANGID language,
                                               GpStringFormat** format);
/// The two generic formats are shared: they can't be changed, and deleting them does nothing. The
/// default one leaves a sixth of an em free on both sides of a line, the typographic one nothing.
VXPLATFORM_API GpStatus GdipStringFormatGetGenericDefault(GpStringFormat** format);
VXPLATFORM_API GpStatus GdipStringFormatGetGenericTypographic(GpStringFormat** format);
VXPLATFORM_API GpStatus GdipCloneStringFormat(const GpStringFormat* format,
                                              GpStringFormat** newFormat);
VXPLATFORM_API GpStatus GdipDeleteStringFormat(GpStringFormat* format);

VXPLATFORM_API GpStatus GdipSetStringFormatFlags(GpStringFormat* format, INT flags);
VXPLATFORM_API GpStatus GdipGetStringFormatFlags(const GpStringFormat* format, INT* flags);
VXPLATFORM_API GpStatus GdipSetStringFormatAlign(GpStringFormat* format, StringAlignment align);
VXPLATFORM_API GpStatus GdipGetStringFormatAlign(const GpStringFormat* format,
                                                 StringAlignment* align);
VXPLATFORM_API GpStatus GdipSetStringFormatLineAlign(GpStringFormat* format, StringAlignment align);
VXPLATFORM_API GpStatus GdipGetStringFormatLineAlign(const GpStringFormat* format,
                                                     StringAlignment* align);
VXPLATFORM_API GpStatus GdipSetStringFormatTrimming(GpStringFormat* format,
                                                    StringTrimming trimming);
VXPLATFORM_API GpStatus GdipGetStringFormatTrimming(const GpStringFormat* format,
                                                    StringTrimming* trimming);
/// `hotkeyPrefix` is of `HotkeyPrefix`.
VXPLATFORM_API GpStatus GdipSetStringFormatHotkeyPrefix(GpStringFormat* format, INT hotkeyPrefix);
VXPLATFORM_API GpStatus GdipGetStringFormatHotkeyPrefix(const GpStringFormat* format,
                                                        INT* hotkeyPrefix);
/// Each stop is a distance from the one before it, the first one from `firstTabOffset`. Negative
/// ones give `NotImplemented`.
VXPLATFORM_API GpStatus GdipSetStringFormatTabStops(GpStringFormat* format, REAL firstTabOffset,
                                                    INT count, const REAL* tabStops);
VXPLATFORM_API GpStatus GdipGetStringFormatTabStops(const GpStringFormat* format, INT count,
                                                    REAL* firstTabOffset, REAL* tabStops);
VXPLATFORM_API GpStatus GdipGetStringFormatTabStopCount(const GpStringFormat* format, INT* count);
VXPLATFORM_API GpStatus GdipSetStringFormatDigitSubstitution(GpStringFormat* format,
                                                             LANGID language,
                                                             StringDigitSubstitute substitute);
VXPLATFORM_API GpStatus GdipGetStringFormatDigitSubstitution(const GpStringFormat* format,
                                                             LANGID* language,
                                                             StringDigitSubstitute* substitute);
/// More than 32 ranges give `ValueOverflow`.
VXPLATFORM_API GpStatus GdipSetStringFormatMeasurableCharacterRanges(GpStringFormat* format,
                                                                     INT rangeCount,
                                                                     const CharacterRange* ranges);
VXPLATFORM_API GpStatus
GdipGetStringFormatMeasurableCharacterRangeCount(const GpStringFormat* format, INT* count);

/// Draws a string with the top left of its layout at that of a rectangle, whose sides bound it
/// where they are above 0. A null format is the generic default; `length` -1 is up to the zero.
VXPLATFORM_API GpStatus GdipDrawString(GpGraphics* graphics, const WCHAR* string, INT length,
                                       const GpFont* font, const GpRectF* layoutRect,
                                       const GpStringFormat* stringFormat, const GpBrush* brush);
/// The box of what `GdipDrawString` would draw, and how many 16-bit units and lines have a place.
/// The two counters may be null.
VXPLATFORM_API GpStatus GdipMeasureString(GpGraphics* graphics, const WCHAR* string, INT length,
                                          const GpFont* font, const GpRectF* layoutRect,
                                          const GpStringFormat* stringFormat, GpRectF* boundingBox,
                                          INT* codepointsFitted, INT* linesFilled);
/// Adds the outlines of a string to a path. `emSize` is in the path's own units.
VXPLATFORM_API GpStatus GdipAddPathString(GpPath* path, const WCHAR* string, INT length,
                                          const GpFontFamily* family, INT style, REAL emSize,
                                          const GpRectF* layoutRect, const GpStringFormat* format);
VXPLATFORM_API GpStatus GdipAddPathStringI(GpPath* path, const WCHAR* string, INT length,
                                           const GpFontFamily* family, INT style, REAL emSize,
                                           const GpRect* layoutRect, const GpStringFormat* format);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_STRINGS(X)                        \
    X(GdipAddPathString)                                \
    X(GdipAddPathStringI)                               \
    X(GdipCloneStringFormat)                            \
    X(GdipCreateStringFormat)                           \
    X(GdipDeleteStringFormat)                           \
    X(GdipDrawString)                                   \
    X(GdipGetStringFormatAlign)                         \
    X(GdipGetStringFormatDigitSubstitution)             \
    X(GdipGetStringFormatFlags)                         \
    X(GdipGetStringFormatHotkeyPrefix)                  \
    X(GdipGetStringFormatLineAlign)                     \
    X(GdipGetStringFormatMeasurableCharacterRangeCount) \
    X(GdipGetStringFormatTabStopCount)                  \
    X(GdipGetStringFormatTabStops)                      \
    X(GdipGetStringFormatTrimming)                      \
    X(GdipMeasureString)                                \
    X(GdipSetStringFormatAlign)                         \
    X(GdipSetStringFormatDigitSubstitution)             \
    X(GdipSetStringFormatFlags)                         \
    X(GdipSetStringFormatHotkeyPrefix)                  \
    X(GdipSetStringFormatLineAlign)                     \
    X(GdipSetStringFormatMeasurableCharacterRanges)     \
    X(GdipSetStringFormatTabStops)                      \
    X(GdipSetStringFormatTrimming)                      \
    X(GdipStringFormatGetGenericDefault)                \
    X(GdipStringFormatGetGenericTypographic)
