#include "vxgui/frame/PictureHelpers.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/surface/modBlur.h"

namespace vxgui {

int32_t GpBitmap::Width() {
    UINT width = 0;
    Check(flat::GdipGetImageWidth(AsImage(), &width));
    return static_cast<int32_t>(width);
}

int32_t GpBitmap::Height() {
    UINT height = 0;
    Check(flat::GdipGetImageHeight(AsImage(), &height));
    return static_cast<int32_t>(height);
}

gdi::HBITMAP GpBitmap::GetHBITMAP(gdiplus::ARGB ColorBackground) {
    gdi::HBITMAP bitmap = nullptr;
    Check(flat::GdipCreateHBITMAPFromBitmap(handle_, &bitmap, ColorBackground));
    return bitmap;
}

gdi::HICON GpBitmap::GetHICON() { return Asked<gdi::HICON>(flat::GdipCreateHICONFromBitmap); }

Ref<ole::Picture> GpBitmap::Picture(gdiplus::ARGB ColorBackground) {
    return PictureFromHandle(GetHBITMAP(ColorBackground), ole::kPictureBitmap, true);
}

gdiplus::ARGB GpBitmap::GetPixel(int32_t X, int32_t Y) {
    gdiplus::ARGB color = 0;
    Check(flat::GdipBitmapGetPixel(handle_, X, Y, &color));
    return color;
}

bool GpBitmap::SetPixel(int32_t X, int32_t Y, gdiplus::ARGB Color) {
    return Check(flat::GdipBitmapSetPixel(handle_, X, Y, Color));
}

bool GpBitmap::SetResolution(float xdpi, float ydpi) {
    return Check(flat::GdipBitmapSetResolution(handle_, xdpi, ydpi));
}

gdiplus::BitmapData GpBitmap::LockBits(int32_t X, int32_t Y, int32_t Width, int32_t Height,
                                       uint32_t Flags, gdiplus::PixelFormat PixelFormat) {
    gdiplus::BitmapData data{};
    LockBits2(data, X, Y, Width, Height, Flags, PixelFormat);
    return data;
}

bool GpBitmap::LockBits2(gdiplus::BitmapData& BitmapData, int32_t X, int32_t Y, int32_t Width,
                         int32_t Height, uint32_t Flags, gdiplus::PixelFormat PixelFormat) {
    const gdiplus::GpRect area{X, Y, Width > 0 ? Width : this->Width(),
                               Height > 0 ? Height : this->Height()};
    return Check(flat::GdipBitmapLockBits(handle_, &area, Flags, PixelFormat, &BitmapData));
}

bool GpBitmap::UnlockBits(gdiplus::BitmapData& BitmapData) {
    return Check(flat::GdipBitmapUnlockBits(handle_, &BitmapData));
}

// The locked pixels are taken for a picture of the rectangle's own width, whatever their stride;
// rows that run backwards would lead out of them.
bool GpBitmap::GaussianBlur(int32_t, int32_t, int32_t X, int32_t Y, int32_t Width, int32_t Height) {
    const KeepAlive keep(this);
    gdiplus::BitmapData data{};
    if (!LockBits2(data, X, Y, Width, Height)) return false;
    const auto width = static_cast<int32_t>(data.Width), height = static_cast<int32_t>(data.Height);
    if (data.Stride >= width * 4) EdgeKernel3x3(data.Scan0, nullptr, width, height);
    UnlockBits(data);
    return true;
}

bool GpBitmap::ConvertFormat(gdiplus::PixelFormat PixelFormat, gdiplus::DitherType DitherType,
                             gdiplus::PaletteType PaletteType, gdiplus::ColorPalette* Palette,
                             float AlphaThresholdPercent) {
    return Check(flat::GdipBitmapConvertFormat(handle_, PixelFormat, DitherType, PaletteType,
                                               Palette, AlphaThresholdPercent));
}

bool GpBitmap::InitializePalette(gdiplus::ColorPalette* Palette, gdiplus::PaletteType PaletteType,
                                 int32_t OptimalColors, bool UseTransparentColor) {
    return Check(flat::GdipInitializePalette(Palette, PaletteType, OptimalColors,
                                             UseTransparentColor, handle_));
}

gdiplus::Status GpBitmap::ApplyEffect(gdiplus::CGpEffect* hGpEffect, gdi::RECT* roi,
                                      bool useAuxData, void** auxData, int32_t* auxDataSize) {
    return flat::GdipBitmapApplyEffect(handle_, hGpEffect, roi, useAuxData, auxData, auxDataSize);
}

gdiplus::Status GpBitmap::CreateApplyEffect(gdiplus::GpBitmap* hGpBitmap,
                                            gdiplus::CGpEffect* hGpEffect, gdi::RECT* roi,
                                            gdi::RECT* outputRect, bool useAuxData, void** auxData,
                                            int32_t* auxDataSize) {
    const KeepAlive keep(this);
    gdiplus::GpBitmap* made = nullptr;
    const gdiplus::Status status = flat::GdipBitmapCreateApplyEffect(
        hGpBitmap, hGpEffect, roi, outputRect, &made, useAuxData, auxData, auxDataSize);
    Adopt(status, made);
    return status;
}

gdiplus::Status GpBitmap::GetHistogram(gdiplus::HistogramFormat Format, uint32_t NumberOfEntries,
                                       UINT* Channel0, UINT* Channel1, UINT* Channel2,
                                       UINT* Channel3) {
    return flat::GdipBitmapGetHistogram(handle_, Format, NumberOfEntries, Channel0, Channel1,
                                        Channel2, Channel3);
}

gdiplus::Status GpBitmap::GetHistogramSize(gdiplus::HistogramFormat Format, UINT* NumberOfEntries) {
    return flat::GdipBitmapGetHistogramSize(handle_, Format, NumberOfEntries);
}

}  // namespace vxgui
