#pragma once

#include "vxgui/base/Export.h"
#include "vxgui/platform/types.h"

/// Handles, records and constants of the drawing interface, with their published names, values
/// and layout. A handle is checked at each use: a stale or wrong one makes the call fail.
namespace vxgui::gdi {

struct HDC__;
struct HBITMAP__;
struct HBRUSH__;
struct HPEN__;
struct HRGN__;
struct HFONT__;
struct HICON__;
struct HPALETTE__;
using HDC = HDC__*;
using HBITMAP = HBITMAP__*;
using HBRUSH = HBRUSH__*;
using HPEN = HPEN__*;
using HRGN = HRGN__*;
using HFONT = HFONT__*;
using HICON = HICON__*;
using HPALETTE = HPALETTE__*;
using HGDIOBJ = void*;

struct POINT {
    LONG x, y;
};
struct SIZE {
    LONG cx, cy;
};
struct RECT {
    LONG left, top, right, bottom;
};

struct BITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;  ///< positive: bottom row first in memory; negative: top row first
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};
static_assert(sizeof(BITMAPINFOHEADER) == 40);

struct RGBQUAD {
    BYTE rgbBlue, rgbGreen, rgbRed, rgbReserved;
};
struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

struct BITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    void* bmBits;
};
struct DIBSECTION {
    BITMAP dsBm;
    BITMAPINFOHEADER dsBmih;
    DWORD dsBitfields[3];
    HANDLE dshSection;
    DWORD dsOffset;
};

/// The ANSI log font, 60 bytes.
struct LOGFONTA {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char lfFaceName[32];
};
static_assert(sizeof(LOGFONTA) == 60);

struct LOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    uintptr_t lbHatch;
};
struct LOGPEN {
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
};

constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;
constexpr UINT DIB_RGB_COLORS = 0;
constexpr DWORD LAYOUT_RTL = 1;
constexpr DWORD BI_RGB = 0, BI_BITFIELDS = 3;

/// Ternary raster operations (any of the 256 codes works; these have names).
constexpr DWORD SRCCOPY = 0x00CC0020, SRCPAINT = 0x00EE0086, SRCAND = 0x008800C6,
                SRCINVERT = 0x00660046, SRCERASE = 0x00440328, NOTSRCCOPY = 0x00330008,
                NOTSRCERASE = 0x001100A6, MERGECOPY = 0x00C000CA, MERGEPAINT = 0x00BB0226,
                PATCOPY = 0x00F00021, PATPAINT = 0x00FB0A09, PATINVERT = 0x005A0049,
                DSTINVERT = 0x00550009, BLACKNESS = 0x00000042, WHITENESS = 0x00FF0062;

/// Object kinds of `GetCurrentObject`.
constexpr UINT OBJ_PEN = 1, OBJ_BRUSH = 2, OBJ_PAL = 5, OBJ_FONT = 6, OBJ_BITMAP = 7;

/// Stock objects.
constexpr int WHITE_BRUSH = 0, LTGRAY_BRUSH = 1, GRAY_BRUSH = 2, DKGRAY_BRUSH = 3, BLACK_BRUSH = 4,
              NULL_BRUSH = 5, WHITE_PEN = 6, BLACK_PEN = 7, NULL_PEN = 8, SYSTEM_FONT = 13,
              DEFAULT_GUI_FONT = 17;

/// Device capabilities.
constexpr int HORZRES = 8, VERTRES = 10, BITSPIXEL = 12, PLANES = 14, LOGPIXELSX = 88,
              LOGPIXELSY = 90;

/// Stretch, background and fill modes.
constexpr int BLACKONWHITE = 1, WHITEONBLACK = 2, COLORONCOLOR = 3, HALFTONE = 4;
constexpr int TRANSPARENT = 1, OPAQUE = 2;
constexpr int ALTERNATE = 1, WINDING = 2;
constexpr int AD_COUNTERCLOCKWISE = 1, AD_CLOCKWISE = 2;

/// Regions.
constexpr int ERROR = 0, NULLREGION = 1, SIMPLEREGION = 2, COMPLEXREGION = 3;
constexpr int RGN_AND = 1, RGN_OR = 2, RGN_XOR = 3, RGN_DIFF = 4, RGN_COPY = 5;

/// Edges.
constexpr UINT BDR_RAISEDOUTER = 1, BDR_SUNKENOUTER = 2, BDR_RAISEDINNER = 4, BDR_SUNKENINNER = 8;
constexpr UINT EDGE_RAISED = 5, EDGE_SUNKEN = 10, EDGE_ETCHED = 6, EDGE_BUMP = 9;
constexpr UINT BF_LEFT = 0x1, BF_TOP = 0x2, BF_RIGHT = 0x4, BF_BOTTOM = 0x8, BF_RECT = 0xF,
               BF_DIAGONAL = 0x10, BF_MIDDLE = 0x800, BF_SOFT = 0x1000, BF_ADJUST = 0x2000,
               BF_FLAT = 0x4000, BF_MONO = 0x8000;
/// A diagonal, named for the corner where it ends; it starts at the opposite one.
constexpr UINT BF_DIAGONAL_ENDTOPLEFT = 0x13, BF_DIAGONAL_ENDTOPRIGHT = 0x16,
               BF_DIAGONAL_ENDBOTTOMLEFT = 0x19, BF_DIAGONAL_ENDBOTTOMRIGHT = 0x1C;

/// System colours of `GetSysColor`.
constexpr int COLOR_SCROLLBAR = 0, COLOR_WINDOW = 5, COLOR_WINDOWFRAME = 6, COLOR_WINDOWTEXT = 8,
              COLOR_BTNFACE = 15, COLOR_BTNSHADOW = 16, COLOR_GRAYTEXT = 17, COLOR_BTNTEXT = 18,
              COLOR_BTNHIGHLIGHT = 20, COLOR_3DDKSHADOW = 21, COLOR_3DLIGHT = 22;

/// Pens and brushes.
constexpr UINT PS_SOLID = 0, PS_DASH = 1, PS_DOT = 2, PS_DASHDOT = 3, PS_DASHDOTDOT = 4,
               PS_NULL = 5, PS_INSIDEFRAME = 6;
constexpr UINT BS_SOLID = 0, BS_NULL = 1, BS_HATCHED = 2, BS_PATTERN = 3;

constexpr COLORREF RGB(int r, int g, int b) {
    return static_cast<COLORREF>((r & 255) | (g & 255) << 8 | (b & 255) << 16);
}

}  // namespace vxgui::gdi
