#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/bitmap/DibFile.h"
#include "vxgui/platform/gdiplus/codec/ImageLoader.h"
#include "vxgui/platform/gdiplus_images.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::gdiplus {
namespace {

// A number in the place of a name's address is the name itself.
String ResourceName(const WCHAR* name) {
    const auto number = reinterpret_cast<uintptr_t>(name);
    return number > 0xFFFF ? String(name) : String("#" + std::to_string(number));
}

}  // namespace

extern "C" {

GpStatus GdipCreateBitmapFromGraphics(INT width, INT height, GpGraphics* graphics,
                                      GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&] {
        return FlatOn<Graphics>(graphics, [&](Graphics& found) {
            Ref<Bitmap> made = Bitmap::Create(width, height, PixelFormat32bppPARGB);
            if (!made) return InvalidParameter;
            made->dpiX = found.Target().DpiX();
            made->dpiY = found.Target().DpiY();
            return HandOut(bitmap, std::move(made));
        });
    });
}

GpStatus GdipCreateBitmapFromDirectDrawSurface(void* surface, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&] { return surface ? NotImplemented : InvalidParameter; });
}

GpStatus GdipCreateBitmapFromResource(kernel::HMODULE module, const WCHAR* name,
                                      GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&] {
        constexpr const char* kBitmapType = "#2";
        if (!name) return InvalidParameter;
        const kernel::ResourceBlock block =
            kernel::FindModuleResource(module, kBitmapType, ResourceName(name));
        Ref<Bitmap> made = LoadBitmap(FileOfDib({block.data, block.size}));
        return made ? HandOut(bitmap, std::move(made)) : InvalidParameter;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
