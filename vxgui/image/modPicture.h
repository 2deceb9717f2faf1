#pragma once

#include "vxgui/base/String.h"
#include "vxgui/frame/PictureHelpers.h"
#include "vxgui/platform/gdi_types.h"

/// Files and blocks of memory to bitmaps and pictures: one function an attempt. All answer null
/// on failure; a bitmap belongs to the caller. A background is an ARGB value that shines through
/// where the picture is transparent.
namespace vxgui {

/// The background of a decode that names none: opaque magenta.
constexpr int32_t kDefaultBackground = static_cast<int32_t>(0xFFFF00FF);

/// The decoders behind the attempts, of this apartment; a test puts others in their place.
struct PictureDecoders {
    gdi::HBITMAP (*gdipFile)(const String& filename, uint32_t background);
    gdi::HBITMAP (*gdipMemory)(const void* address, int32_t size, uint32_t background);
    gdi::HBITMAP (*tgaMemory)(const void* address, int32_t size);
    Ref<ole::Picture> (*platformFile)(const String& filename);
    Ref<ole::Picture> (*platformMemory)(const void* address, size_t size);
    gdi::HGDIOBJ (*icon)(const String& filename, bool cursor);
};
extern const PictureDecoders kPictureDecoders;
extern thread_local const PictureDecoders* gPictureDecoders;

/// By GDI+. A background of 0 becomes the default, one with a zero top byte becomes opaque.
gdi::HBITMAP GdipFileToHBitmap(const String& filename, int32_t background);
/// By GDI+. A background of 0 becomes the default.
gdi::HBITMAP GdipMemoryToHBitmap(const void* address, int32_t size, int32_t background);
gdi::HBITMAP TgaFileToHBitmap(const String& filename);
gdi::HBITMAP TgaMemoryToHBitmap(const void* address, int32_t size);
/// The platform's own loader, whose errors say no more than "none".
Ref<ole::Picture> LoadByPlatform(const String& filename);
/// By the platform's own picture loader.
Ref<ole::Picture> OleMemoryToPicture(const void* address, int32_t size);

/// By the last four characters of the name: ".tga", ".ico", ".cur", else GDI+. `picType` gets
/// the picture's type, whatever comes of it.
gdi::HGDIOBJ LoadPictureHandle(const String& filename, int16_t& picType, int32_t background);

}  // namespace vxgui
