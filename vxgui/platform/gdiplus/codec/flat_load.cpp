#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/codec/ImageLoader.h"
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
    return LoadBitmap(std::move(bytes));
}

/// What a failed load answers.
struct Failures {
    GpStatus missing, unreadable;
};
constexpr Failures kOfImages{FileNotFound, OutOfMemory};
constexpr Failures kOfBitmaps{InvalidParameter, InvalidParameter};

template <class Handle>
GpStatus FromFile(const WCHAR* filename, Handle** result, Failures failures) {
    return FlatCreate(result, [&]() -> GpStatus {
        if (!filename) return InvalidParameter;
        ByteArray bytes;
        if (!core7::ReadWholeFile(filename, &bytes)) return failures.missing;
        Ref<Bitmap> bitmap = LoadBitmap(std::move(bytes));
        return bitmap ? HandOut(result, std::move(bitmap)) : failures.unreadable;
    });
}

template <class Handle>
GpStatus FromStream(IStream* stream, Handle** result, Failures failures) {
    return FlatCreate(result, [&]() -> GpStatus {
        if (!stream) return InvalidParameter;
        Ref<Bitmap> bitmap = BitmapOfStream(*stream);
        return bitmap ? HandOut(result, std::move(bitmap)) : failures.unreadable;
    });
}

}  // namespace

// Colours are those of the file: a profile in it has no say, with and without the plea for it.
extern "C" {

GpStatus GdipLoadImageFromFile(const WCHAR* filename, GpImage** image) {
    return FromFile(filename, image, kOfImages);
}

GpStatus GdipLoadImageFromFileICM(const WCHAR* filename, GpImage** image) {
    return FromFile(filename, image, kOfImages);
}

GpStatus GdipLoadImageFromStream(IStream* stream, GpImage** image) {
    return FromStream(stream, image, kOfImages);
}

GpStatus GdipLoadImageFromStreamICM(IStream* stream, GpImage** image) {
    return FromStream(stream, image, kOfImages);
}

GpStatus GdipCreateBitmapFromFile(const WCHAR* filename, GpBitmap** bitmap) {
    return FromFile(filename, bitmap, kOfBitmaps);
}

GpStatus GdipCreateBitmapFromFileICM(const WCHAR* filename, GpBitmap** bitmap) {
    return FromFile(filename, bitmap, kOfBitmaps);
}

GpStatus GdipCreateBitmapFromStream(IStream* stream, GpBitmap** bitmap) {
    return FromStream(stream, bitmap, kOfBitmaps);
}

GpStatus GdipCreateBitmapFromStreamICM(IStream* stream, GpBitmap** bitmap) {
    return FromStream(stream, bitmap, kOfBitmaps);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
