#include <algorithm>
#include <cstring>
#include <new>

#include "vxgui/platform/gdi/DeviceColors.h"
#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/Dib.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/StockObjects.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

using TakesPixels = PixelBlock(size_t size);

GdiRef<Bitmap> MakeBitmap(const BitmapShape& shape, const ColorTable* colors,
                          TakesPixels* take = TakePixels) {
    size_t size = 0;
    if (__builtin_mul_overflow(static_cast<size_t>(shape.stride), static_cast<size_t>(shape.height),
                               &size)) {
        return nullptr;
    }
    auto table = colors ? std::make_unique<ColorTable>(*colors) : nullptr;
    HeldPixels pixels(take(size));
    if (!pixels.Get().bits) return nullptr;
    auto bitmap = std::make_unique<Bitmap>(shape, pixels.Get(), std::move(table));
    pixels.Release();
    return Enter(std::move(bitmap));
}

GdiRef<Bitmap> MakeDibSection(const DibForm& form, TakesPixels* take = TakePixels) {
    BitmapShape shape;
    shape.width = form.width;
    shape.height = form.height;
    shape.depth = form.depth;
    shape.stride = form.stride;
    shape.bottomUp = form.bottomUp;
    shape.dibSection = true;
    return MakeBitmap(shape, form.Colors(), take);
}

// Rows of a device bitmap start at even addresses.
GdiRef<Bitmap> MakeDeviceBitmap(int32_t width, int32_t height, int depth) {
    BitmapShape shape;
    shape.width = width;
    shape.height = height;
    shape.depth = depth;
    shape.stride = RowBytes(width, depth, 2);
    return MakeBitmap(shape, depth == 8 ? &DeviceColors(8) : nullptr);
}

HBITMAP HandleOf(const GdiRef<Bitmap>& bitmap) {
    return bitmap ? static_cast<HBITMAP>(bitmap->Handle()) : nullptr;
}

// The form of another DIB section, with another size.
GdiRef<Bitmap> MakeLike(const Bitmap& model, int32_t width, int32_t height) {
    if (!model.IsDibSection()) return MakeDeviceBitmap(width, height, model.Depth());
    DibForm form;
    form.width = width;
    form.height = height;
    form.depth = model.Depth();
    form.stride = RowBytes(width, form.depth, 4);
    if (model.Colors()) form.colors = *model.Colors();
    return MakeDibSection(form);
}

}  // namespace

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits) try {
    const bool served = bitCount == 1 || bitCount == 8 || bitCount == 24 || bitCount == 32;
    if (width < 0 || height < 0 || planes != 1 || !served) return nullptr;
    if (width == 0 || height == 0) return HandleOf(GdiRef(StockBitmap()));
    const GdiRef<Bitmap> bitmap = MakeDeviceBitmap(width, height, static_cast<int>(bitCount));
    if (bitmap && bits) {
        std::memcpy(bitmap->Bits(), bits, static_cast<size_t>(bitmap->Shape().stride * height));
    }
    return HandleOf(bitmap);
} catch (const std::bad_alloc&) {
    return nullptr;
}

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if ((dc && !context) || width < 0 || height < 0) return nullptr;
    if (width == 0 || height == 0) return HandleOf(GdiRef(StockBitmap()));
    if (!context) return HandleOf(MakeDeviceBitmap(width, height, 32));
    return HandleOf(MakeLike(*context->state.bitmap, width, height));
} catch (const std::bad_alloc&) {
    return nullptr;
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD) try {
    if (bits) *bits = nullptr;
    DibForm form;
    // A file mapping as the memory is another platform's matter.
    if (section || !ReadDib(info, usage, &form)) return nullptr;
    const GdiRef<Bitmap> bitmap = MakeDibSection(form);
    if (bitmap && bits) *bits = bitmap->Bits();
    return HandleOf(bitmap);
} catch (const std::bad_alloc&) {
    return nullptr;
}

HBITMAP CreateFilledDIBSection(const BITMAPINFO* info, UINT usage, std::span<const uint8_t> pixels,
                               void** bits) try {
    *bits = nullptr;
    DibForm form;
    if (!ReadDib(info, usage, &form)) return nullptr;
    const GdiRef<Bitmap> bitmap = MakeDibSection(form, TakeRawPixels);
    if (!bitmap) return nullptr;
    *bits = bitmap->Bits();
    const auto size = static_cast<size_t>(form.Size());
    const size_t filled = std::min(size, pixels.size());
    if (filled > 0) std::memcpy(bitmap->Bits(), pixels.data(), filled);
    std::memset(bitmap->Bits() + filled, 0, size - filled);
    return HandleOf(bitmap);
} catch (const std::bad_alloc&) {
    return nullptr;
}

}  // namespace vxgui::gdi
