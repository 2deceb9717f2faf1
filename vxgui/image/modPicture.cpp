#include "vxgui/image/modPicture.h"

#include "vxgui/base/Error.h"
#include "vxgui/frame/modGdiplus.h"
#include "vxgui/image/modTGA.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi_images.h"

namespace vxgui {
namespace {

constexpr uint32_t kOpaque = 0xFF000000;

uint32_t OrDefault(int32_t background) {
    return static_cast<uint32_t>(background ? background : kDefaultBackground);
}

uint32_t MadeOpaque(uint32_t background) {
    return background & kOpaque ? background : background | kOpaque;
}

// A device bitmap of what `create` answers with Ok. Unbound functions answer Ok with nothing
// done: the handles stay null then, and so does the result.
template <class Create>
gdi::HBITMAP HBitmapOf(Create create, uint32_t background) {
    gdiplus::GpBitmap* bitmap = nullptr;
    if (create(&bitmap) != gdiplus::Ok) return nullptr;
    gdi::HBITMAP handle = nullptr;
    flat::GdipCreateHBITMAPFromBitmap(bitmap, &handle, background);
    flat::GdipDisposeImage(reinterpret_cast<gdiplus::GpImage*>(bitmap));
    return handle;
}

gdi::HBITMAP DecodeFile(const String& filename, uint32_t background) {
    return HBitmapOf(
        [&](auto bitmap) { return flat::GdipCreateBitmapFromFile(filename.data(), bitmap); },
        background);
}

gdi::HBITMAP DecodeMemory(const void* address, int32_t size, uint32_t background) {
    const Ref<ole::IStream> stream = MemoryToStream(address, size);
    if (!stream) return nullptr;
    return HBitmapOf(
        [&](auto bitmap) { return flat::GdipCreateBitmapFromStream(stream.get(), bitmap); },
        background);
}

gdi::HBITMAP DecodeTga(const void* address, int32_t size) {
    bool hasFooter = false;
    return TgaToDib(address, size, hasFooter);
}

gdi::HGDIOBJ LoadIcon(const String& filename, bool cursor) {
    return gdi::LoadImageA(nullptr, filename, cursor ? gdi::IMAGE_CURSOR : gdi::IMAGE_ICON, 0, 0,
                           gdi::LR_LOADFROMFILE | gdi::LR_CREATEDIBSECTION);
}

}  // namespace

const PictureDecoders kPictureDecoders = {DecodeFile,       DecodeMemory,        DecodeTga,
                                          ole::LoadPicture, ole::OleLoadPicture, LoadIcon};
thread_local const PictureDecoders* gPictureDecoders = &kPictureDecoders;

gdi::HBITMAP GdipFileToHBitmap(const String& filename, int32_t background) {
    return gPictureDecoders->gdipFile(filename, MadeOpaque(OrDefault(background)));
}

gdi::HBITMAP GdipMemoryToHBitmap(const void* address, int32_t size, int32_t background) {
    return gPictureDecoders->gdipMemory(address, size, OrDefault(background));
}

gdi::HBITMAP TgaMemoryToHBitmap(const void* address, int32_t size) {
    return gPictureDecoders->tgaMemory(address, size);
}

gdi::HBITMAP TgaFileToHBitmap(const String& filename) {
    ByteArray bytes;
    if (!core7::ReadWholeFile(filename, &bytes)) return nullptr;
    return TgaMemoryToHBitmap(bytes.data(), static_cast<int32_t>(bytes.size()));
}

Ref<ole::Picture> LoadByPlatform(const String& filename) {
    try {
        return gPictureDecoders->platformFile(filename);
    } catch (const Error&) {
        return nullptr;
    }
}

Ref<ole::Picture> OleMemoryToPicture(const void* address, int32_t size) {
    if (!address || size <= 0) return nullptr;
    return gPictureDecoders->platformMemory(address, static_cast<size_t>(size));
}

gdi::HGDIOBJ LoadPictureHandle(const String& filename, int16_t& picType, int32_t background) {
    const String ending = filename.Right(4).Lower();
    const bool cursor = ending == ".cur";
    if (cursor || ending == ".ico") {
        picType = ole::kPictureIcon;
        return gPictureDecoders->icon(filename, cursor);
    }
    picType = ole::kPictureBitmap;
    return ending == ".tga" ? TgaFileToHBitmap(filename) : GdipFileToHBitmap(filename, background);
}

}  // namespace vxgui
