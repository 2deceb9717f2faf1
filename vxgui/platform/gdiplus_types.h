#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/gdiplus_enums.h"
#include "vxgui/platform/ole_stream.h"

/// Handles, records and constants of the flat GDI+ interface, with their published names, values
/// and layout; pointers and handles are as wide as the machine's.
namespace vxgui::gdiplus {

using WCHAR = char16_t;
using REAL = float;
using INT = int32_t;
using LANGID = uint16_t;
using UINT32 = uint32_t;
using UINT_PTR = uintptr_t;
using ULONG_PTR = uintptr_t;
using ARGB = DWORD;  ///< blue in the lowest byte
using ole::IStream;

/// Objects behind a handle. A function that gets a handle of another kind, or a dead one,
/// answers `InvalidParameter`.
class GpImage;
class GpBitmap;
class GpCachedBitmap;
class GpGraphics;
class GpMatrix;
class GpPath;
class GpPen;
class GpBrush;
class GpImageAttributes;
class CGpEffect;
class GpFontFamily;
class GpFont;
class GpFontCollection;
class GpStringFormat;

struct GpPoint {
    INT X, Y;
};
struct GpPointF {
    REAL X, Y;
};
struct GpSizeF {
    REAL Width, Height;
};
struct GpRect {
    INT X, Y, Width, Height;
};
struct GpRectF {
    REAL X, Y, Width, Height;
};

struct CharacterRange {
    INT First, Length;
};

struct CLSID {
    DWORD Data1;
    WORD Data2, Data3;
    BYTE Data4[8];
    bool operator==(const CLSID&) const = default;
};
using GUID = CLSID;

/// A palette; `Entries` has `Count` colours.
struct ColorPalette {
    UINT Flags;  ///< of `PaletteFlags`
    UINT Count;
    ARGB Entries[1];
};

/// Rows multiply: (red, green, blue, alpha, 1) from the left.
struct ColorMatrix {
    REAL m[5][5];
};
struct ColorMap {
    ARGB oldColor, newColor;
};

/// One property of an image; `value` is `length` bytes.
struct PropertyItem {
    DWORD id;
    DWORD length;
    WORD type;
    void* value;
};

struct EncoderParameter {
    GUID Guid;
    DWORD NumberOfValues;
    DWORD Type;
    void* Value;
};
/// `Parameter` has `Count` of them.
struct EncoderParameters {
    UINT Count;
    EncoderParameter Parameter[1];
};

struct ImageCodecInfo {
    CLSID Clsid;
    GUID FormatID;
    const WCHAR* CodecName;
    const WCHAR* DllName;
    const WCHAR* FormatDescription;
    const WCHAR* FilenameExtension;
    const WCHAR* MimeType;
    DWORD Flags;
    DWORD Version;
    DWORD SigCount;
    DWORD SigSize;
    const BYTE* SigPattern;
    const BYTE* SigMask;
};

/// A path as arrays of its own.
struct GpPathData {
    INT Count;
    GpPointF* Points;
    BYTE* Types;
};

/// Locked pixels: the top row first, `Stride` bytes from row to row.
struct BitmapData {
    UINT Width;
    UINT Height;
    INT Stride;
    gdiplus::PixelFormat PixelFormat;
    void* Scan0;
    UINT_PTR Reserved;
};

struct GdiplusStartupInput {
    UINT32 GdiplusVersion;  ///< 1 or 2
    void* DebugEventCallback;
    BOOL SuppressBackgroundThread;
    BOOL SuppressExternalCodecs;
};
struct GdiplusStartupOutput {
    void* NotificationHook;
    void* NotificationUnhook;
};

}  // namespace vxgui::gdiplus
