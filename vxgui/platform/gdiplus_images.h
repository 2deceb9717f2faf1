#pragma once

#include "vxgui/platform/gdiplus_formats.h"
#include "vxgui/platform/gdiplus_types.h"
#include "vxgui/platform/kernel.h"

/// Images and bitmaps. What a creating function answers is released with `GdipDisposeImage`; on
/// failure it answers a null handle.
namespace vxgui::gdiplus {

extern "C" {

/// Asked now and then while a thumbnail is made; true ends the work.
using GetThumbnailImageAbort = BOOL (*)(void* data);

/// A bitmap of a published format. Without `scan0` it has zeroed memory of its own and `stride`
/// doesn't count; else it lives in the caller's memory, whose top row is at `scan0`: rows `stride`
/// bytes apart, a multiple of 4, negative where the bottom row is the first in memory. An indexed
/// one starts with a standard palette.
VXPLATFORM_API GpStatus GdipCreateBitmapFromScan0(INT width, INT height, INT stride,
                                                  PixelFormat format, BYTE* scan0,
                                                  GpBitmap** bitmap);
/// Over the caller's pixels, in either row order; 32 bits have no alpha.
VXPLATFORM_API GpStatus GdipCreateBitmapFromGdiDib(const gdi::BITMAPINFO* info, void* bits,
                                                   GpBitmap** bitmap);
/// A copy in the bitmap's own depth; 32 bits have no alpha. The palette doesn't count.
VXPLATFORM_API GpStatus GdipCreateBitmapFromHBITMAP(gdi::HBITMAP source, gdi::HPALETTE palette,
                                                    GpBitmap** bitmap);
/// With the icon's alpha, or clear where its mask says so.
VXPLATFORM_API GpStatus GdipCreateBitmapFromHICON(gdi::HICON icon, GpBitmap** bitmap);
/// A bitmap resource by name, or by a number in its place.
VXPLATFORM_API GpStatus GdipCreateBitmapFromResource(kernel::HMODULE module, const WCHAR* name,
                                                     GpBitmap** bitmap);
/// Premultiplied, with the graphics' resolution.
VXPLATFORM_API GpStatus GdipCreateBitmapFromGraphics(INT width, INT height, GpGraphics* graphics,
                                                     GpBitmap** bitmap);
/// There are no such surfaces here: `NotImplemented`.
VXPLATFORM_API GpStatus GdipCreateBitmapFromDirectDrawSurface(void* surface, GpBitmap** bitmap);

/// Decodes a file or stream (BMP, GIF, ICO, JPEG, PNG, TIFF) by its signature, whatever its name:
/// the first frame, in the file's own pixel format: indexes stay indexes and 24 bits 24, grey is
/// indexed, 16 bits a channel become 8. The forms with ICM heed no profile either. As an image, a
/// file that isn't there gives `FileNotFound` and one that is no picture `OutOfMemory`; as a
/// bitmap, both give `InvalidParameter`.
VXPLATFORM_API GpStatus GdipLoadImageFromFile(const WCHAR* filename, GpImage** image);
VXPLATFORM_API GpStatus GdipLoadImageFromFileICM(const WCHAR* filename, GpImage** image);
VXPLATFORM_API GpStatus GdipLoadImageFromStream(IStream* stream, GpImage** image);
VXPLATFORM_API GpStatus GdipLoadImageFromStreamICM(IStream* stream, GpImage** image);
VXPLATFORM_API GpStatus GdipCreateBitmapFromFile(const WCHAR* filename, GpBitmap** bitmap);
VXPLATFORM_API GpStatus GdipCreateBitmapFromFileICM(const WCHAR* filename, GpBitmap** bitmap);
VXPLATFORM_API GpStatus GdipCreateBitmapFromStream(IStream* stream, GpBitmap** bitmap);
VXPLATFORM_API GpStatus GdipCreateBitmapFromStreamICM(IStream* stream, GpBitmap** bitmap);

/// All of an image: pixels, palette, resolution, properties.
VXPLATFORM_API GpStatus GdipCloneImage(GpImage* image, GpImage** clone);
/// A part in another format, or with `PixelFormatUndefined` in its own. `OutOfMemory` for an area
/// that leaves the bitmap.
VXPLATFORM_API GpStatus GdipCloneBitmapAreaI(INT x, INT y, INT width, INT height,
                                             PixelFormat format, GpBitmap* bitmap,
                                             GpBitmap** clone);
VXPLATFORM_API GpStatus GdipCloneBitmapArea(REAL x, REAL y, REAL width, REAL height,
                                            PixelFormat format, GpBitmap* bitmap, GpBitmap** clone);
/// Scaled to a size; without a width or height in proportion, without both 120 x 120.
VXPLATFORM_API GpStatus GdipGetImageThumbnail(GpImage* image, UINT width, UINT height,
                                              GpImage** thumbnail, GetThumbnailImageAbort abort,
                                              void* data);
VXPLATFORM_API GpStatus GdipDisposeImage(GpImage* image);

VXPLATFORM_API GpStatus GdipGetImageWidth(GpImage* image, UINT* width);
VXPLATFORM_API GpStatus GdipGetImageHeight(GpImage* image, UINT* height);
/// The rectangle of all pixels, and `UnitPixel`.
VXPLATFORM_API GpStatus GdipGetImageBounds(GpImage* image, GpRectF* bounds, Unit* unit);
/// Pixels, since there are no other images than bitmaps.
VXPLATFORM_API GpStatus GdipGetImageDimension(GpImage* image, REAL* width, REAL* height);
VXPLATFORM_API GpStatus GdipGetImageType(GpImage* image, ImageType* type);
VXPLATFORM_API GpStatus GdipGetImageHorizontalResolution(GpImage* image, REAL* resolution);
VXPLATFORM_API GpStatus GdipGetImageVerticalResolution(GpImage* image, REAL* resolution);
VXPLATFORM_API GpStatus GdipGetImageFlags(GpImage* image, UINT* flags);
VXPLATFORM_API GpStatus GdipGetImageRawFormat(GpImage* image, GUID* format);
VXPLATFORM_API GpStatus GdipGetImagePixelFormat(GpImage* image, PixelFormat* format);

/// The size in bytes of the palette's record, which `GdipGetImagePalette` wants to be told.
VXPLATFORM_API GpStatus GdipGetImagePaletteSize(GpImage* image, INT* size);
VXPLATFORM_API GpStatus GdipGetImagePalette(GpImage* image, ColorPalette* palette, INT size);
VXPLATFORM_API GpStatus GdipSetImagePalette(GpImage* image, const ColorPalette* palette);
/// Fills a palette whose `Count` says how many colours it has room for. The optimal one is made of
/// the bitmap's colours. A clear entry, where wanted, is the last.
VXPLATFORM_API GpStatus GdipInitializePalette(ColorPalette* palette, PaletteType type,
                                              INT optimalColors, BOOL useTransparentColor,
                                              GpBitmap* bitmap);

/// Turns clockwise, then mirrors left to right, in place.
VXPLATFORM_API GpStatus GdipImageRotateFlip(GpImage* image, RotateFlipType type);
/// Changes the format in place. An indexed one takes the given palette, else one of the type, whose
/// colours also tell ordered dithering how far they lie apart. What is less opaque than the
/// threshold, in percent, becomes clear where alpha has one bit.
VXPLATFORM_API GpStatus GdipBitmapConvertFormat(GpBitmap* bitmap, PixelFormat format,
                                                DitherType dither, PaletteType type,
                                                ColorPalette* palette, REAL alphaThreshold);
/// Counts pixels by value, 256 entries a channel, the channels in the order of the format's name.
VXPLATFORM_API GpStatus GdipBitmapGetHistogram(GpBitmap* bitmap, HistogramFormat format,
                                               UINT entries, UINT* channel0, UINT* channel1,
                                               UINT* channel2, UINT* channel3);
/// The entries that it takes. The bitmap stands in front, as callers here pass it, and doesn't
/// count.
VXPLATFORM_API GpStatus GdipBitmapGetHistogramSize(GpBitmap* bitmap, HistogramFormat format,
                                                   UINT* entries);

/// A 32-bit bottom-up DIB section with premultiplied colours over `background`, whose own alpha
/// does not count; the alpha byte stays the pixel's.
VXPLATFORM_API GpStatus GdipCreateHBITMAPFromBitmap(GpBitmap* bitmap, gdi::HBITMAP* result,
                                                    ARGB background);
/// An icon with the bitmap's alpha.
VXPLATFORM_API GpStatus GdipCreateHICONFromBitmap(GpBitmap* bitmap, gdi::HICON* icon);

/// Opens the rectangle (null: the whole) to the caller in `format`, until `GdipBitmapUnlockBits`
/// writes back what was locked for writing: in a buffer of the caller's, in the bitmap's own rows
/// where the format is theirs, else in a copy. `WrongState` for a second lock; all other work on
/// the pixels is `ObjectBusy` meanwhile. An indexed format is for indexed bitmaps only.
VXPLATFORM_API GpStatus GdipBitmapLockBits(GpBitmap* bitmap, const GpRect* rect, UINT flags,
                                           PixelFormat format, BitmapData* data);
VXPLATFORM_API GpStatus GdipBitmapUnlockBits(GpBitmap* bitmap, BitmapData* data);
/// Straight colours, whatever the format. Indexed bitmaps take none.
VXPLATFORM_API GpStatus GdipBitmapGetPixel(GpBitmap* bitmap, INT x, INT y, ARGB* color);
VXPLATFORM_API GpStatus GdipBitmapSetPixel(GpBitmap* bitmap, INT x, INT y, ARGB color);
VXPLATFORM_API GpStatus GdipBitmapSetResolution(GpBitmap* bitmap, REAL xdpi, REAL ydpi);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_IMAGES(X)              \
    X(GdipBitmapConvertFormat)               \
    X(GdipBitmapGetHistogram)                \
    X(GdipBitmapGetHistogramSize)            \
    X(GdipBitmapGetPixel)                    \
    X(GdipBitmapLockBits)                    \
    X(GdipBitmapSetPixel)                    \
    X(GdipBitmapSetResolution)               \
    X(GdipBitmapUnlockBits)                  \
    X(GdipCloneBitmapArea)                   \
    X(GdipCloneBitmapAreaI)                  \
    X(GdipCloneImage)                        \
    X(GdipCreateBitmapFromDirectDrawSurface) \
    X(GdipCreateBitmapFromFile)              \
    X(GdipCreateBitmapFromFileICM)           \
    X(GdipCreateBitmapFromGdiDib)            \
    X(GdipCreateBitmapFromGraphics)          \
    X(GdipCreateBitmapFromHBITMAP)           \
    X(GdipCreateBitmapFromHICON)             \
    X(GdipCreateBitmapFromResource)          \
    X(GdipCreateBitmapFromScan0)             \
    X(GdipCreateBitmapFromStream)            \
    X(GdipCreateBitmapFromStreamICM)         \
    X(GdipCreateHBITMAPFromBitmap)           \
    X(GdipCreateHICONFromBitmap)             \
    X(GdipDisposeImage)                      \
    X(GdipGetImageBounds)                    \
    X(GdipGetImageDimension)                 \
    X(GdipGetImageFlags)                     \
    X(GdipGetImageHeight)                    \
    X(GdipGetImageHorizontalResolution)      \
    X(GdipGetImagePalette)                   \
    X(GdipGetImagePaletteSize)               \
    X(GdipGetImagePixelFormat)               \
    X(GdipGetImageRawFormat)                 \
    X(GdipGetImageThumbnail)                 \
    X(GdipGetImageType)                      \
    X(GdipGetImageVerticalResolution)        \
    X(GdipGetImageWidth)                     \
    X(GdipImageRotateFlip)                   \
    X(GdipInitializePalette)                 \
    X(GdipLoadImageFromFile)                 \
    X(GdipLoadImageFromFileICM)              \
    X(GdipLoadImageFromStream)               \
    X(GdipLoadImageFromStreamICM)            \
    X(GdipSetImagePalette)
