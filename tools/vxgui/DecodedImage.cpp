#include "tools/vxgui/DecodedImage.h"

#include <algorithm>
#include <cstring>

#include "tools/vxgui/StraightSurface.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdiplus.h"

namespace vxgui::tool {
namespace {

class GdiplusSession {
public:
    GdiplusSession() {
        const gdiplus::GdiplusStartupInput input{1, nullptr, false, false};
        gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~GdiplusSession() { gdiplus::GdiplusShutdown(token_); }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;

private:
    gdiplus::ULONG_PTR token_ = 0;
};

/// A decoded bitmap whose pixels are open to reading.
class LockedBitmap {
public:
    explicit LockedBitmap(const ByteArray& bytes) {
        const Ref<ole::IStream> stream = ole::CreateStreamOnHGlobal(bytes);
        if (gdiplus::GdipCreateBitmapFromStream(stream.get(), &bitmap_) != gdiplus::Ok) return;
        locked_ = gdiplus::GdipBitmapLockBits(bitmap_, nullptr, gdiplus::ImageLockModeRead,
                                              gdiplus::PixelFormat32bppARGB, &data_) == gdiplus::Ok;
    }
    ~LockedBitmap() {
        if (locked_) gdiplus::GdipBitmapUnlockBits(bitmap_, &data_);
        if (bitmap_) gdiplus::GdipDisposeImage(reinterpret_cast<gdiplus::GpImage*>(bitmap_));
    }
    LockedBitmap(const LockedBitmap&) = delete;
    LockedBitmap& operator=(const LockedBitmap&) = delete;

    const gdiplus::BitmapData* Data() const { return locked_ ? &data_ : nullptr; }

private:
    GdiplusSession session_;
    gdiplus::GpBitmap* bitmap_ = nullptr;
    gdiplus::BitmapData data_{};
    bool locked_ = false;
};

Ref<cAlphaDIBSection> SurfaceOf(const gdiplus::BitmapData& data, const std::string& path) {
    auto surface =
        NewSurface(static_cast<int32_t>(data.Width), static_cast<int32_t>(data.Height), path);
    const ARGBArray pixels = surface->GetARGBArray();
    for (int32_t y = 0; y < pixels.Rows(); ++y) {
        std::memcpy(&pixels(pixels.Rows() - 1 - y, 0),
                    static_cast<const uint8_t*>(data.Scan0) + std::ptrdiff_t{y} * data.Stride,
                    size_t{data.Width} * sizeof(ARGB));
    }
    return surface;
}

// The pixels of a BMP with a fourth byte in use. The headers of most 32-bit files don't say
// whether it is: it is taken for alpha when some pixel has it.
Ref<cAlphaDIBSection> WithFourthByte(const ByteArray& bytes, const std::string& path) {
    const Ref<ole::Picture> picture = ole::OleLoadPicture(bytes.data(), bytes.size());
    gdi::DIBSECTION section{};
    if (!picture || gdi::GetObjectA(picture->Handle(), gdi::kDibSectionRecordSize, &section) == 0 ||
        section.dsBm.bmBitsPixel != 32) {
        return nullptr;
    }
    auto surface = NewSurface(section.dsBm.bmWidth, section.dsBm.bmHeight, path);
    const auto* from = static_cast<const ARGB*>(section.dsBm.bmBits);
    const size_t count =
        static_cast<size_t>(surface->Width()) * static_cast<size_t>(surface->Height());
    std::copy_n(from, count, static_cast<ARGB*>(surface->DIBSectionBitsPtr()));
    const bool used = std::any_of(from, from + count, [](ARGB pixel) { return pixel.Alpha != 0; });
    return used ? surface : nullptr;
}

}  // namespace

Ref<cAlphaDIBSection> DecodeImage(const ByteArray& bytes, PictureKind kind,
                                  const std::string& path) {
    if (kind == PictureKind::Bmp) {
        if (Ref<cAlphaDIBSection> surface = WithFourthByte(bytes, path)) return surface;
    }
    const LockedBitmap bitmap(bytes);
    if (bitmap.Data()) return SurfaceOf(*bitmap.Data(), path);
    Fail(path, std::string("a ") + NameOf(kind) +
                   " that can't be read: it is damaged, ends early, or is over 32767 pixels a "
                   "side or 64 megapixels");
}

}  // namespace vxgui::tool
