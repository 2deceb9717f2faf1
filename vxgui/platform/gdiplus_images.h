#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Images and bitmaps. What a creating function answers is released with `GdipDisposeImage`; on
/// failure it answers a null handle.
namespace vxgui::gdiplus {

extern "C" {

/// A bitmap of a published format. Without `scan0` it has zeroed memory of its own and `stride`
/// doesn't count; else it lives in the caller's memory, whose top row is at `scan0`: rows `stride`
/// bytes apart, a multiple of 4, negative where the bottom row is the first in memory. An indexed
/// one starts with a standard palette.
VXPLATFORM_API GpStatus GdipCreateBitmapFromScan0(INT width, INT height, INT stride,
                                                  PixelFormat format, BYTE* scan0,
                                                  GpBitmap** bitmap);

/// Decodes a file or stream (BMP, GIF, ICO, JPEG, PNG, TIFF) by its signature, whatever its name:
/// the first frame, to 32-bit pixels. As an image, a file that isn't there gives `FileNotFound` and
/// one that is no picture `OutOfMemory`; as a bitmap, both give `InvalidParameter`.
VXPLATFORM_API GpStatus GdipLoadImageFromFile(const WCHAR* filename, GpImage** image);
VXPLATFORM_API GpStatus GdipCreateBitmapFromFile(const WCHAR* filename, GpBitmap** bitmap);
VXPLATFORM_API GpStatus GdipCreateBitmapFromStream(IStream* stream, GpBitmap** bitmap);
VXPLATFORM_API GpStatus GdipDisposeImage(GpImage* image);

VXPLATFORM_API GpStatus GdipGetImageWidth(GpImage* image, UINT* width);
VXPLATFORM_API GpStatus GdipGetImageHeight(GpImage* image, UINT* height);

/// A 32-bit bottom-up DIB section with premultiplied colours over `background`, whose own alpha
/// does not count; the alpha byte stays the pixel's.
VXPLATFORM_API GpStatus GdipCreateHBITMAPFromBitmap(GpBitmap* bitmap, gdi::HBITMAP* result,
                                                    ARGB background);

/// Opens the rectangle (null: the whole) to the caller in `format`, until `GdipBitmapUnlockBits`
/// writes back what was locked for writing. One lock at a time.
VXPLATFORM_API GpStatus GdipBitmapLockBits(GpBitmap* bitmap, const GpRect* rect, UINT flags,
                                           PixelFormat format, BitmapData* data);
VXPLATFORM_API GpStatus GdipBitmapUnlockBits(GpBitmap* bitmap, BitmapData* data);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_IMAGES(X)    \
    X(GdipBitmapLockBits)          \
    X(GdipBitmapUnlockBits)        \
    X(GdipCreateBitmapFromFile)    \
    X(GdipCreateBitmapFromScan0)   \
    X(GdipCreateBitmapFromStream)  \
    X(GdipCreateHBITMAPFromBitmap) \
    X(GdipDisposeImage)            \
    X(GdipGetImageHeight)          \
    X(GdipGetImageWidth)           \
    X(GdipLoadImageFromFile)
