#pragma once

#include "vxgui/platform/gdi_types.h"

/// Fonts and text. Text is UTF-16; counts are 16-bit units, -1 for text that ends with a zero.
namespace vxgui::gdi {

struct TEXTMETRICA {
    LONG tmHeight, tmAscent, tmDescent, tmInternalLeading, tmExternalLeading, tmAveCharWidth,
        tmMaxCharWidth, tmWeight, tmOverhang, tmDigitizedAspectX, tmDigitizedAspectY;
    BYTE tmFirstChar, tmLastChar, tmDefaultChar, tmBreakChar, tmItalic, tmUnderlined, tmStruckOut,
        tmPitchAndFamily, tmCharSet;
};

constexpr UINT TA_LEFT = 0, TA_RIGHT = 2, TA_CENTER = 6, TA_TOP = 0, TA_BOTTOM = 8,
               TA_BASELINE = 24, TA_NOUPDATECP = 0, TA_UPDATECP = 1;
constexpr UINT ETO_OPAQUE = 2, ETO_CLIPPED = 4;
constexpr UINT GDI_ERROR = 0xFFFFFFFF;

/// The format flags of `DrawTextA` and `DrawTextW`.
enum DrawTextFlags : UINT {
    DT_LEFT = 0,
    DT_TOP = 0,
    DT_CENTER = 1,
    DT_RIGHT = 2,
    DT_VCENTER = 4,
    DT_BOTTOM = 8,
    DT_WORDBREAK = 16,
    DT_SINGLELINE = 32,
    DT_EXPANDTABS = 64,
    DT_TABSTOP = 128,  ///< bits 8 to 15 are the distance of the stops, in average widths
    DT_NOCLIP = 256,
    DT_EXTERNALLEADING = 512,
    DT_CALCRECT = 1024,
    DT_NOPREFIX = 2048,
    DT_INTERNAL = 4096,
    DT_EDITCONTROL = 8192,
    DT_PATH_ELLIPSIS = 16384,
    DT_END_ELLIPSIS = 32768,
    DT_MODIFYSTRING = 65536,
    DT_RTLREADING = 131072,
    DT_WORD_ELLIPSIS = 262144,
    DT_NOFULLWIDTHCHARBREAK = 524288,
    DT_HIDEPREFIX = 1048576,
    DT_PREFIXONLY = 2097152,
};

VXPLATFORM_API HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight,
                                 DWORD italic, DWORD underline, DWORD strikeOut, DWORD charSet,
                                 DWORD outPrecision, DWORD clipPrecision, DWORD quality,
                                 DWORD pitchAndFamily, const char* faceName);
VXPLATFORM_API HFONT CreateFontIndirectA(const LOGFONTA* font);

VXPLATFORM_API COLORREF SetTextColor(HDC dc, COLORREF color);
VXPLATFORM_API COLORREF GetTextColor(HDC dc);
VXPLATFORM_API COLORREF SetBkColor(HDC dc, COLORREF color);
VXPLATFORM_API COLORREF GetBkColor(HDC dc);
VXPLATFORM_API int SetBkMode(HDC dc, int mode);
VXPLATFORM_API int GetBkMode(HDC dc);
VXPLATFORM_API UINT SetTextAlign(HDC dc, UINT align);
VXPLATFORM_API UINT GetTextAlign(HDC dc);
VXPLATFORM_API int SetTextCharacterExtra(HDC dc, int extra);
VXPLATFORM_API int GetTextCharacterExtra(HDC dc);
VXPLATFORM_API BOOL SetTextJustification(HDC dc, int extra, int breakCount);

VXPLATFORM_API BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* metrics);
VXPLATFORM_API BOOL GetTextExtentPoint32W(HDC dc, const char16_t* text, int count, SIZE* size);
VXPLATFORM_API DWORD GetTabbedTextExtentW(HDC dc, const char16_t* text, int count, int tabCount,
                                          const int* tabs);

VXPLATFORM_API int DrawTextA(HDC dc, const char* text, int count, RECT* rect, UINT flags);
/// With DT_MODIFYSTRING the text may be written to, and grows by up to four units.
VXPLATFORM_API int DrawTextW(HDC dc, char16_t* text, int count, RECT* rect, UINT flags);
VXPLATFORM_API BOOL ExtTextOutW(HDC dc, int x, int y, UINT options, const RECT* rect,
                                const char16_t* text, UINT count, const int* advances);
VXPLATFORM_API BOOL TextOutW(HDC dc, int x, int y, const char16_t* text, int count);
VXPLATFORM_API LONG TabbedTextOutW(HDC dc, int x, int y, const char16_t* text, int count,
                                   int tabCount, const int* tabs, int tabOrigin);

}  // namespace vxgui::gdi
