#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "vxgui/platform/gdi_types.h"

/// Device contexts, bitmaps and blits. Calls answer 0, false or `CLR_INVALID` on failure, as
/// published, and touch no memory but the target's. Any thread may use any handle; one context
/// is for one thread at a time.
namespace vxgui::gdi {

/// A host's own pixels, to be drawn on in place.
struct HostPixels {
    void* bits;        ///< the first row in memory; a multiple of 4
    int32_t width;     ///< pixels, above 0
    int32_t height;    ///< pixels, above 0
    ptrdiff_t stride;  ///< bytes from one row to the next; above or below 0, a multiple of 4
    bool bottomUp;     ///< the first row in memory is the bottom one of the picture
};

/// A device context over 32-bit blue-green-red-alpha pixels that belong to the host and must
/// outlive it. Delete it with `DeleteDC`. Null for a size or stride that can't be.
VXPLATFORM_API HDC CreateHostDC(const HostPixels& pixels);

// Device contexts.
/// A fresh memory context; null stands for the screen.
VXPLATFORM_API HDC CreateCompatibleDC(HDC dc);
VXPLATFORM_API BOOL DeleteDC(HDC dc);
/// A context of the screen, for measuring; null stands for the whole screen. Give it back with
/// `ReleaseDC`.
VXPLATFORM_API HDC GetDC(HANDLE window);
VXPLATFORM_API int ReleaseDC(HANDLE window, HDC dc);
/// The layout flags of a context (1 is right to left), for those who ask; drawing is not mirrored.
VXPLATFORM_API DWORD SetLayout(HDC dc, DWORD layout);
VXPLATFORM_API DWORD GetLayout(HDC dc);
/// Answers the level that `RestoreDC` takes, from 1; 0 on failure.
VXPLATFORM_API int SaveDC(HDC dc);
/// Brings back the state of a level, or, below 0, of as many levels ago; it and later ones end.
VXPLATFORM_API BOOL RestoreDC(HDC dc, int level);
/// 96 dots an inch unless the host sets another with `SetScreenDpi`; 0 for a null context.
VXPLATFORM_API int GetDeviceCaps(HDC dc, int index);
VXPLATFORM_API void SetScreenDpi(int dpi);
VXPLATFORM_API int ScreenDpi();

// Objects.
/// Answers what was selected before; null on failure. A bitmap can be selected in one memory
/// context only. A region becomes the clip, and the answer is its kind.
VXPLATFORM_API HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
VXPLATFORM_API HGDIOBJ GetCurrentObject(HDC dc, UINT kind);
VXPLATFORM_API HGDIOBJ GetStockObject(int index);
/// A selected object goes when it is deselected; stock objects stay, and the call succeeds.
VXPLATFORM_API BOOL DeleteObject(HGDIOBJ object);
/// Fills the record of a bitmap (`BITMAP`, or `DIBSECTION` when it is one and `size` allows),
/// font, brush or pen; answers the bytes written, 0 on failure. With a null buffer it answers
/// the size that the record has.
VXPLATFORM_API int GetObjectA(HGDIOBJ object, int size, void* buffer);
/// The published sizes by which callers tell a DIB section from a bitmap.
constexpr int kBitmapRecordSize = sizeof(BITMAP);
constexpr int kDibSectionRecordSize = sizeof(DIBSECTION);
VXPLATFORM_API BOOL GdiFlush();

// Bitmaps.
/// A device bitmap of 1, 8, 24 or 32 bits a pixel; rows of `bits` start at even addresses.
VXPLATFORM_API HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitCount,
                                    const void* bits);
VXPLATFORM_API HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);
/// 1, 8, 24 and 32 bits a pixel. `bits` gets the first byte of the pixel memory, zeroed. As
/// everywhere, `info` goes on with its colours (biClrUsed of them, all when that is 0) where the
/// header says up to 8 bits: a bare header isn't enough then.
VXPLATFORM_API HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits,
                                        HANDLE section, DWORD offset);
/// The same with the bytes of `pixels` as its first ones, and zeroes behind them; what is beyond
/// its memory is left out.
VXPLATFORM_API HBITMAP CreateFilledDIBSection(const BITMAPINFO* info, UINT usage,
                                              std::span<const uint8_t> pixels, void** bits);
/// `bits` holds `scanLines` rows from `startScan` on. That and `sourceY` count from the bottom of
/// the picture, whatever its row order; the source rectangle's lower left corner is shown at the
/// lower left corner of the target rectangle. Answers the rows that were there.
VXPLATFORM_API int SetDIBitsToDevice(HDC dc, int x, int y, DWORD width, DWORD height, int sourceX,
                                     int sourceY, UINT startScan, UINT scanLines, const void* bits,
                                     const BITMAPINFO* info, UINT usage);
/// Copies rows in the form of `info` and answers their number; without `bits` it fills the
/// header, all of it where biBitCount is 0.
VXPLATFORM_API int GetDIBits(HDC dc, HBITMAP bitmap, UINT startScan, UINT scanLines, void* bits,
                             BITMAPINFO* info, UINT usage);

// Blits. A negative extent mirrors; its rectangle covers the start and what is before it. Only
// pixels that have a source pixel are written. Overlapping copies read their source first.
VXPLATFORM_API BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX,
                           int sourceY, DWORD rop);
VXPLATFORM_API BOOL StretchBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX,
                               int sourceY, int sourceWidth, int sourceHeight, DWORD rop);
VXPLATFORM_API BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD rop);
VXPLATFORM_API int SetStretchBltMode(HDC dc, int mode);
VXPLATFORM_API int GetStretchBltMode(HDC dc);
VXPLATFORM_API COLORREF GetPixel(HDC dc, int x, int y);
VXPLATFORM_API COLORREF SetPixel(HDC dc, int x, int y, COLORREF color);

/// value * numerator / denominator in 64 bits, halves away from zero; -1 for a denominator of 0
/// and for overflow.
VXPLATFORM_API int MulDiv(int value, int numerator, int denominator);

// The built-in module "msimg32.dll".
/// A BLENDFUNCTION packed in 32 bits: op, flags, constant alpha, format, lowest byte first.
VXPLATFORM_API BOOL AlphaBlend(HDC dc, int x, int y, int width, int height, HDC source, int sourceX,
                               int sourceY, int sourceWidth, int sourceHeight, DWORD blend);
VXPLATFORM_API BOOL TransparentBlt(HDC dc, int x, int y, int width, int height, HDC source,
                                   int sourceX, int sourceY, int sourceWidth, int sourceHeight,
                                   UINT key);
struct TRIVERTEX {
    LONG x, y;
    WORD Red, Green, Blue, Alpha;
};
struct GRADIENT_RECT {
    DWORD UpperLeft, LowerRight;
};
struct GRADIENT_TRIANGLE {
    DWORD Vertex1, Vertex2, Vertex3;
};
constexpr DWORD GRADIENT_FILL_RECT_H = 0, GRADIENT_FILL_RECT_V = 1, GRADIENT_FILL_TRIANGLE = 2;
VXPLATFORM_API BOOL GradientFill(HDC dc, const TRIVERTEX* vertices, DWORD vertexCount,
                                 const void* mesh, DWORD meshCount, DWORD mode);

// The built-in module "msvfw32.dll".
using HDRAWDIB = HANDLE;
VXPLATFORM_API HDRAWDIB DrawDibOpen();
VXPLATFORM_API BOOL DrawDibClose(HDRAWDIB handle);
/// Draws a picture from memory like a blit from a surface that holds it: the source counts from
/// the top left. An extent of -1 means the natural size; null bits stand behind the colours.
VXPLATFORM_API BOOL DrawDibDraw(HDRAWDIB handle, HDC dc, int x, int y, int width, int height,
                                const BITMAPINFOHEADER* header, const void* bits, int sourceX,
                                int sourceY, int sourceWidth, int sourceHeight, UINT flags);

}  // namespace vxgui::gdi
