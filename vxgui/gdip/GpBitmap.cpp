#include "vxgui/gdip/GpBitmap.h"

#include <limits>

#include "vxgui/frame/PictureHelpers.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui {

void GpBitmap::SetHandle(gdiplus::GpBitmap*& handle) {
    const Ref<GpImage> kept = image_;
    gdiplus::GpBitmap* const adopted = handle;
    Dispose();
    image_ = kept;
    handle_ = adopted;
}

// With an image at hand the own handle isn't deleted, which is meant.
void GpBitmap::Dispose() {
    if (!image_) return GpOwner::Dispose();
    image_ = nullptr;
    handle_ = nullptr;
}

Ref<GpImage> GpBitmap::Image() {
    const KeepAlive keep(this);
    if (image_) return image_;
    gdiplus::GpImage* clone = nullptr;
    if (Check(flat::GdipCloneImage(AsImage(), &clone))) image_ = Holding<GpImage>(clone);
    return image_;
}

Ref<GpBitmap> GpBitmap::Clone(int32_t X, int32_t Y, int32_t& Width, int32_t& Height,
                              gdiplus::PixelFormat PixelFormat) {
    const KeepAlive keep(this);
    if (Width <= 0) Width = this->Width();
    if (Height <= 0) Height = this->Height();
    gdiplus::GpBitmap* clone = nullptr;
    const bool made = Check(flat::GdipCloneBitmapArea(
        static_cast<float>(X), static_cast<float>(Y), static_cast<float>(Width),
        static_cast<float>(Height), PixelFormat, handle_, &clone));
    return made ? Holding<GpBitmap>(clone) : nullptr;
}

bool GpBitmap::Create(int32_t Width, int32_t Height, gdi::HDC) {
    const KeepAlive keep(this);
    gdiplus::GpBitmap* bitmap = nullptr;
    if (Check(flat::GdipCreateBitmapFromScan0(Width, Height, 0, gdiplus::PixelFormat32bppARGB,
                                              nullptr, &bitmap))) {
        return Adopt(gdiplus::Ok, bitmap);
    }
    // Memory of our own instead. What no bitmap can have gets none, and the call below refuses it.
    const gdi::BITMAPINFO info = gdi::DibInfo(Width, Height);
    const int64_t pixels = int64_t{Width} * Height;
    const bool possible =
        Width > 0 && Height > 0 && pixels <= std::numeric_limits<int32_t>::max() / 4;
    std::vector<uint32_t> store(possible ? static_cast<size_t>(pixels) + 1 : 0);
    const gdiplus::Status status =
        flat::GdipCreateBitmapFromGdiDib(&info, possible ? store.data() : nullptr, &bitmap);
    if (!Adopt(status, bitmap)) return false;
    store_ = std::move(store);
    return true;
}

gdiplus::GpBitmap* GpBitmap::FromFile(const String& Filename, bool UseEmbeddedColorManagement) {
    const gdiplus::WCHAR* const name = Filename.data();
    return UseEmbeddedColorManagement ? MakeHandle(flat::GdipCreateBitmapFromFileICM, name)
                                      : MakeHandle(flat::GdipCreateBitmapFromFile, name);
}

gdiplus::GpBitmap* GpBitmap::FromStream(gdiplus::IStream* Stream, bool UseEmbeddedColorManagement) {
    return UseEmbeddedColorManagement ? MakeHandle(flat::GdipCreateBitmapFromStreamICM, Stream)
                                      : MakeHandle(flat::GdipCreateBitmapFromStream, Stream);
}

gdiplus::GpBitmap* GpBitmap::FromMemAddr(const void* lpBits, int32_t nSize,
                                         bool UseEmbeddedColorManagement) {
    const Ref<ole::IStream> stream = MemoryToStream(lpBits, nSize);
    return stream ? FromStream(stream.get(), UseEmbeddedColorManagement) : nullptr;
}

gdiplus::GpBitmap* GpBitmap::FromByteArray(const ByteArray& Bytes,
                                           bool UseEmbeddedColorManagement) {
    if (Bytes.empty() || Bytes.size() > std::numeric_limits<int32_t>::max()) return nullptr;
    return FromMemAddr(Bytes.data(), static_cast<int32_t>(Bytes.size()),
                       UseEmbeddedColorManagement);
}

bool GpBitmap::FromScan0(int32_t Width, int32_t Height, int32_t Stride,
                         gdiplus::PixelFormat PixelFormat, BYTE* Scan0) {
    return Make(flat::GdipCreateBitmapFromScan0, Width, Height, Stride, PixelFormat, Scan0);
}

bool GpBitmap::FromGraphics(int32_t Width, int32_t Height, gdiplus::GpGraphics* hGraphics) {
    return Make(flat::GdipCreateBitmapFromGraphics, Width, Height, hGraphics);
}

bool GpBitmap::FromDirectDrawSurface7(void* Surface) {
    return Make(flat::GdipCreateBitmapFromDirectDrawSurface, Surface);
}

bool GpBitmap::FromGdiDib(const gdi::BITMAPINFO* GdiBitmapInfo, void* GdiBitmapData) {
    return Make(flat::GdipCreateBitmapFromGdiDib, GdiBitmapInfo, GdiBitmapData);
}

bool GpBitmap::FromHBITMAP(gdi::HBITMAP hBitmap, gdi::HPALETTE hPalette) {
    return Make(flat::GdipCreateBitmapFromHBITMAP, hBitmap, hPalette);
}

bool GpBitmap::FromHICON(gdi::HICON hIcon) { return Make(flat::GdipCreateBitmapFromHICON, hIcon); }

bool GpBitmap::FromResource(kernel::HMODULE hInstance, const String& BitmapName) {
    return Make(flat::GdipCreateBitmapFromResource, hInstance, BitmapName.data());
}

}  // namespace vxgui
