#pragma once

#include <vector>

#include "vxgui/gdip/GpImage.h"
#include "vxgui/platform/ole.h"

namespace vxgui {

class GpGraphics;

/// A bitmap. Operations that answer a Boolean say whether they succeeded; those that answer a
/// handle give the new one, or null and keep what there was. A failure stays in `Status`.
class VXGUI_API GpBitmap : public GpOwner<GpBitmap, gdiplus::GpBitmap> {
public:
    static constexpr auto kDelete = [](gdiplus::GpBitmap* bitmap) {
        return flat::GdipDisposeImage(reinterpret_cast<gdiplus::GpImage*>(bitmap));
    };

    gdiplus::GpBitmap* Handle() const { return handle_; }
    /// Owns a handle. An image that was read from `Image` stays the same.
    void SetHandle(gdiplus::GpBitmap*& handle);
    /// Lets the image of `Image` go, if there is one, and then only forgets the bitmap's own
    /// handle; without one, deletes it.
    void Dispose();
    /// The bitmap as an image of its own, cloned when it is first read and kept.
    Ref<GpImage> Image();
    /// A part. A width or height of 0 or less becomes the bitmap's own, for the caller too.
    Ref<GpBitmap> Clone(int32_t X, int32_t Y, int32_t& Width, int32_t& Height,
                        gdiplus::PixelFormat PixelFormat);

    /// 32 bits a pixel, premultiplied no; the device context isn't used.
    bool Create(int32_t Width, int32_t Height, gdi::HDC CompatibleDC = nullptr);
    gdiplus::GpBitmap* FromFile(const String& Filename, bool UseEmbeddedColorManagement = false);
    gdiplus::GpBitmap* FromStream(gdiplus::IStream* Stream,
                                  bool UseEmbeddedColorManagement = false);
    gdiplus::GpBitmap* FromMemAddr(const void* lpBits, int32_t nSize,
                                   bool UseEmbeddedColorManagement = true);
    gdiplus::GpBitmap* FromByteArray(const ByteArray& Bytes,
                                     bool UseEmbeddedColorManagement = true);
    bool FromScan0(int32_t Width, int32_t Height, int32_t Stride, gdiplus::PixelFormat PixelFormat,
                   BYTE* Scan0);
    bool FromGraphics(int32_t Width, int32_t Height, gdiplus::GpGraphics* hGraphics);
    bool FromDirectDrawSurface7(void* Surface);
    bool FromGdiDib(const gdi::BITMAPINFO* GdiBitmapInfo, void* GdiBitmapData);
    bool FromHBITMAP(gdi::HBITMAP hBitmap, gdi::HPALETTE hPalette = nullptr);
    bool FromHICON(gdi::HICON hIcon);
    bool FromResource(kernel::HMODULE hInstance, const String& BitmapName);

    gdi::HBITMAP GetHBITMAP(gdiplus::ARGB ColorBackground);
    gdi::HICON GetHICON();
    /// As a picture that owns its bitmap.
    Ref<ole::Picture> Picture(gdiplus::ARGB ColorBackground);

    int32_t Width();
    int32_t Height();
    gdiplus::ARGB GetPixel(int32_t X, int32_t Y);
    bool SetPixel(int32_t X, int32_t Y, gdiplus::ARGB Color);
    bool SetResolution(float xdpi, float ydpi);

    /// Widths and heights of 0 or less mean the bitmap's own.
    gdiplus::BitmapData LockBits(int32_t X = 0, int32_t Y = 0, int32_t Width = 0,
                                 int32_t Height = 0,
                                 uint32_t Flags = gdiplus::ImageLockModeRead |
                                                  gdiplus::ImageLockModeWrite,
                                 gdiplus::PixelFormat PixelFormat = gdiplus::PixelFormat32bppARGB);
    /// The same into the caller's record.
    bool LockBits2(gdiplus::BitmapData& BitmapData, int32_t X = 0, int32_t Y = 0, int32_t Width = 0,
                   int32_t Height = 0,
                   uint32_t Flags = gdiplus::ImageLockModeRead | gdiplus::ImageLockModeWrite,
                   gdiplus::PixelFormat PixelFormat = gdiplus::PixelFormat32bppARGB);
    bool UnlockBits(gdiplus::BitmapData& BitmapData);

    /// Marks edges rather than blurring, with a kernel of its own: the radii aren't used.
    bool GaussianBlur(int32_t radiusX = 4, int32_t radiusY = 4, int32_t X = 0, int32_t Y = 0,
                      int32_t Width = 0, int32_t Height = 0);
    bool ConvertFormat(gdiplus::PixelFormat PixelFormat, gdiplus::DitherType DitherType,
                       gdiplus::PaletteType PaletteType, gdiplus::ColorPalette* Palette,
                       float AlphaThresholdPercent);
    bool InitializePalette(gdiplus::ColorPalette* Palette, gdiplus::PaletteType PaletteType,
                           int32_t OptimalColors, bool UseTransparentColor);
    /// The bitmap that an effect makes of another becomes this one's. The flat status; a failure is
    /// kept as well. It gets eight arguments: one bitmap, and no count of bitmaps.
    gdiplus::Status CreateApplyEffect(gdiplus::GpBitmap* hGpBitmap, gdiplus::CGpEffect* hGpEffect,
                                      gdi::RECT* roi, gdi::RECT* outputRect, bool useAuxData,
                                      void** auxData, int32_t* auxDataSize);
    /// These answer the flat status, which isn't kept.
    gdiplus::Status ApplyEffect(gdiplus::CGpEffect* hGpEffect, gdi::RECT* roi, bool useAuxData,
                                void** auxData, int32_t* auxDataSize);
    gdiplus::Status GetHistogram(gdiplus::HistogramFormat Format, uint32_t NumberOfEntries,
                                 UINT* Channel0, UINT* Channel1, UINT* Channel2, UINT* Channel3);
    gdiplus::Status GetHistogramSize(gdiplus::HistogramFormat Format, UINT* NumberOfEntries);

protected:
    ~GpBitmap() override { Dispose(); }

private:
    gdiplus::GpImage* AsImage() const { return reinterpret_cast<gdiplus::GpImage*>(handle_); }

    Ref<GpImage> image_;
    std::vector<uint32_t> store_;  ///< the pixels of a bitmap that could only be made over memory
};

}  // namespace vxgui
