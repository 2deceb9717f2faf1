#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {
namespace {

Ref<Bitmap> BitmapOfStream(IStream& stream) {
    ByteArray bytes(stream.Size());
    if (!stream.Seek(0, ole::SeekOrigin::Set)) return nullptr;
    size_t read = 0;
    while (read < bytes.size()) {
        const auto wanted = static_cast<uint32_t>(std::min<size_t>(bytes.size() - read, 1u << 30));
        const uint32_t got = stream.Read(bytes.data() + read, wanted);
        if (got == 0) return nullptr;
        read += got;
    }
    return DecodeBitmap(bytes);
}

template <class Handle>
GpStatus HandOutOr(Handle** result, Ref<Bitmap> bitmap, GpStatus otherwise) {
    return bitmap ? HandOut(result, std::move(bitmap)) : otherwise;
}

}  // namespace

extern "C" {

GpStatus GdipLoadImageFromFile(const WCHAR* filename, GpImage** image) {
    return FlatCreate(image, [&]() -> GpStatus {
        if (!filename) return InvalidParameter;
        ByteArray bytes;
        if (!core7::ReadWholeFile(filename, &bytes)) return FileNotFound;
        return HandOutOr(image, DecodeBitmap(bytes), OutOfMemory);
    });
}

GpStatus GdipCreateBitmapFromFile(const WCHAR* filename, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&]() -> GpStatus {
        ByteArray bytes;
        if (!filename || !core7::ReadWholeFile(filename, &bytes)) return InvalidParameter;
        return HandOutOr(bitmap, DecodeBitmap(bytes), InvalidParameter);
    });
}

GpStatus GdipCreateBitmapFromStream(IStream* stream, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&]() -> GpStatus {
        if (!stream) return InvalidParameter;
        return HandOutOr(bitmap, BitmapOfStream(*stream), InvalidParameter);
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
