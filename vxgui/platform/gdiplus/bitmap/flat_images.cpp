#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatCall.h"
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
GpStatus HandOut(Ref<Bitmap> bitmap, Handle** result, GpStatus otherwise) {
    if (!bitmap) return otherwise;
    *result = static_cast<Handle*>(EnterObject(std::move(bitmap)));
    return Ok;
}

}  // namespace

extern "C" {

GpStatus GdipLoadImageFromFile(const WCHAR* filename, GpImage** image) {
    return FlatCreate(image, [&]() -> GpStatus {
        if (!filename) return InvalidParameter;
        ByteArray bytes;
        if (!core7::ReadWholeFile(filename, &bytes)) return FileNotFound;
        return HandOut(DecodeBitmap(bytes), image, OutOfMemory);
    });
}

GpStatus GdipCreateBitmapFromFile(const WCHAR* filename, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&]() -> GpStatus {
        ByteArray bytes;
        if (!filename || !core7::ReadWholeFile(filename, &bytes)) return InvalidParameter;
        return HandOut(DecodeBitmap(bytes), bitmap, InvalidParameter);
    });
}

GpStatus GdipCreateBitmapFromStream(IStream* stream, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&]() -> GpStatus {
        if (!stream) return InvalidParameter;
        return HandOut(BitmapOfStream(*stream), bitmap, InvalidParameter);
    });
}

GpStatus GdipDisposeImage(GpImage* image) {
    return Flat([&] { return Find<Image>(image) && RetireObject(image) ? Ok : InvalidParameter; });
}

GpStatus GdipGetImageWidth(GpImage* image, UINT* width) {
    return Flat([&] {
        const Ref<Image> found = Find<Image>(image);
        if (!found || !width) return InvalidParameter;
        *width = found->Width();
        return Ok;
    });
}

GpStatus GdipGetImageHeight(GpImage* image, UINT* height) {
    return Flat([&] {
        const Ref<Image> found = Find<Image>(image);
        if (!found || !height) return InvalidParameter;
        *height = found->Height();
        return Ok;
    });
}

GpStatus GdipBitmapLockBits(GpBitmap* bitmap, const GpRect* rect, UINT flags, PixelFormat format,
                            BitmapData* data) {
    return Flat([&] {
        const Ref<Bitmap> found = Find<Bitmap>(bitmap);
        if (!found || !data) return InvalidParameter;
        const GpRect whole{0, 0, static_cast<INT>(found->Width()),
                           static_cast<INT>(found->Height())};
        return found->Lock(rect ? *rect : whole, flags, format, data);
    });
}

GpStatus GdipBitmapUnlockBits(GpBitmap* bitmap, BitmapData* data) {
    return Flat([&] {
        const Ref<Bitmap> found = Find<Bitmap>(bitmap);
        return found && data ? found->Unlock(*data) : InvalidParameter;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
