#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/ole_stream.h"

/// Handles, records and constants of the flat GDI+ interface, with their published names, values
/// and layout; pointers and handles are as wide as the machine's.
namespace vxgui::gdiplus {

using WCHAR = char16_t;
using INT = int32_t;
using UINT32 = uint32_t;
using UINT_PTR = uintptr_t;
using ULONG_PTR = uintptr_t;
using ARGB = DWORD;  ///< blue in the lowest byte
using ole::IStream;

/// Objects behind a handle. A function that gets a handle of another kind, or a dead one,
/// answers `InvalidParameter`.
class GpImage;
class GpBitmap;

enum Status : int32_t {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    ObjectBusy = 4,
    InsufficientBuffer = 5,
    NotImplemented = 6,
    Win32Error = 7,
    WrongState = 8,
    Aborted = 9,
    FileNotFound = 10,
    ValueOverflow = 11,
    AccessDenied = 12,
    UnknownImageFormat = 13,
    FontFamilyNotFound = 14,
    FontStyleNotFound = 15,
    NotTrueTypeFont = 16,
    UnsupportedGdiplusVersion = 17,
    GdiplusNotInitialized = 18,
    PropertyNotFound = 19,
    PropertyNotSupported = 20,
    ProfileNotFound = 21,
};
using GpStatus = Status;

using PixelFormat = INT;
constexpr PixelFormat PixelFormat1bppIndexed = 0x00030101, PixelFormat4bppIndexed = 0x00030402,
                      PixelFormat8bppIndexed = 0x00030803, PixelFormat16bppGrayScale = 0x00101004,
                      PixelFormat16bppRGB555 = 0x00021005, PixelFormat16bppRGB565 = 0x00021006,
                      PixelFormat16bppARGB1555 = 0x00061007, PixelFormat24bppRGB = 0x00021808,
                      PixelFormat32bppRGB = 0x00022009, PixelFormat32bppARGB = 0x0026200A,
                      PixelFormat32bppPARGB = 0x000E200B, PixelFormat48bppRGB = 0x0010300C,
                      PixelFormat64bppARGB = 0x0034400D, PixelFormat64bppPARGB = 0x001C400E,
                      PixelFormat32bppCMYK = 0x0000200F;

/// Flags of `GdipBitmapLockBits`.
constexpr UINT ImageLockModeRead = 1, ImageLockModeWrite = 2, ImageLockModeUserInputBuf = 4;

struct GpRect {
    INT X, Y, Width, Height;
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
