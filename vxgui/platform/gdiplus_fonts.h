#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Font families, fonts and collections of families.
namespace vxgui::gdiplus {

extern "C" {

/// The family of a name, whatever its case; of the system without a collection.
/// `FontFamilyNotFound` when there is none.
VXPLATFORM_API GpStatus GdipCreateFontFamilyFromName(const WCHAR* name,
                                                     GpFontCollection* fontCollection,
                                                     GpFontFamily** fontFamily);
VXPLATFORM_API GpStatus GdipGetGenericFontFamilySansSerif(GpFontFamily** nativeFamily);
VXPLATFORM_API GpStatus GdipGetGenericFontFamilySerif(GpFontFamily** nativeFamily);
VXPLATFORM_API GpStatus GdipGetGenericFontFamilyMonospace(GpFontFamily** nativeFamily);
VXPLATFORM_API GpStatus GdipDeleteFontFamily(GpFontFamily* family);
/// `name` has room for 32 characters.
VXPLATFORM_API GpStatus GdipGetFamilyName(const GpFontFamily* family, WCHAR* name, LANGID language);
/// `style` is of `FontStyle`.
VXPLATFORM_API GpStatus GdipIsStyleAvailable(const GpFontFamily* family, INT style,
                                             BOOL* isStyleAvailable);
/// Measures in design units.
VXPLATFORM_API GpStatus GdipGetEmHeight(const GpFontFamily* family, INT style, WORD* emHeight);
VXPLATFORM_API GpStatus GdipGetCellAscent(const GpFontFamily* family, INT style, WORD* cellAscent);
VXPLATFORM_API GpStatus GdipGetCellDescent(const GpFontFamily* family, INT style,
                                           WORD* cellDescent);
VXPLATFORM_API GpStatus GdipGetLineSpacing(const GpFontFamily* family, INT style,
                                           WORD* lineSpacing);

/// Every unit but `UnitDisplay`. `FontStyleNotFound` for a style that the family can't be given.
VXPLATFORM_API GpStatus GdipCreateFont(const GpFontFamily* fontFamily, REAL emSize, INT style,
                                       Unit unit, GpFont** font);
/// The font that is selected in a context, in world units.
VXPLATFORM_API GpStatus GdipCreateFontFromDC(gdi::HDC hdc, GpFont** font);
VXPLATFORM_API GpStatus GdipCreateFontFromLogfontA(gdi::HDC hdc, const gdi::LOGFONTA* logfont,
                                                   GpFont** font);
VXPLATFORM_API GpStatus GdipCloneFont(GpFont* font, GpFont** cloneFont);
VXPLATFORM_API GpStatus GdipDeleteFont(GpFont* font);
/// A handle of its own, which the caller deletes.
VXPLATFORM_API GpStatus GdipGetFamily(GpFont* font, GpFontFamily** family);
VXPLATFORM_API GpStatus GdipGetFontStyle(GpFont* font, INT* style);
VXPLATFORM_API GpStatus GdipGetFontSize(GpFont* font, REAL* size);
VXPLATFORM_API GpStatus GdipGetFontUnit(GpFont* font, Unit* unit);
/// The line spacing in page units of the graphics.
VXPLATFORM_API GpStatus GdipGetFontHeight(const GpFont* font, const GpGraphics* graphics,
                                          REAL* height);
/// The line spacing in pixels of a device.
VXPLATFORM_API GpStatus GdipGetFontHeightGivenDPI(const GpFont* font, REAL dpi, REAL* height);
/// The font as it appears through the graphics.
VXPLATFORM_API GpStatus GdipGetLogFontA(GpFont* font, GpGraphics* graphics,
                                        gdi::LOGFONTA* logfontA);

/// A collection of the system's families. Fonts that are added to it stay its own; deleting it as
/// a private one ends it.
VXPLATFORM_API GpStatus GdipNewInstalledFontCollection(GpFontCollection** fontCollection);
VXPLATFORM_API GpStatus GdipNewPrivateFontCollection(GpFontCollection** fontCollection);
VXPLATFORM_API GpStatus GdipDeletePrivateFontCollection(GpFontCollection** fontCollection);
VXPLATFORM_API GpStatus GdipGetFontCollectionFamilyCount(GpFontCollection* fontCollection,
                                                         INT* numFound);
/// The families that are handed out are the collection's.
VXPLATFORM_API GpStatus GdipGetFontCollectionFamilyList(GpFontCollection* fontCollection,
                                                        INT numSought, GpFontFamily** gpfamilies,
                                                        INT* numFound);
/// `FileNotFound` for what can't be read, `NotTrueTypeFont` for what is no outline font.
VXPLATFORM_API GpStatus GdipPrivateAddFontFile(GpFontCollection* fontCollection,
                                               const WCHAR* filename);
VXPLATFORM_API GpStatus GdipPrivateAddMemoryFont(GpFontCollection* fontCollection,
                                                 const void* memory, INT length);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_FONTS(X)           \
    X(GdipCloneFont)                     \
    X(GdipCreateFont)                    \
    X(GdipCreateFontFamilyFromName)      \
    X(GdipCreateFontFromDC)              \
    X(GdipCreateFontFromLogfontA)        \
    X(GdipDeleteFont)                    \
    X(GdipDeleteFontFamily)              \
    X(GdipDeletePrivateFontCollection)   \
    X(GdipGetCellAscent)                 \
    X(GdipGetCellDescent)                \
    X(GdipGetEmHeight)                   \
    X(GdipGetFamily)                     \
    X(GdipGetFamilyName)                 \
    X(GdipGetFontCollectionFamilyCount)  \
    X(GdipGetFontCollectionFamilyList)   \
    X(GdipGetFontHeight)                 \
    X(GdipGetFontHeightGivenDPI)         \
    X(GdipGetFontSize)                   \
    X(GdipGetFontStyle)                  \
    X(GdipGetFontUnit)                   \
    X(GdipGetGenericFontFamilyMonospace) \
    X(GdipGetGenericFontFamilySansSerif) \
    X(GdipGetGenericFontFamilySerif)     \
    X(GdipGetLineSpacing)                \
    X(GdipGetLogFontA)                   \
    X(GdipIsStyleAvailable)              \
    X(GdipNewInstalledFontCollection)    \
    X(GdipNewPrivateFontCollection)      \
    X(GdipPrivateAddFontFile)            \
    X(GdipPrivateAddMemoryFont)
