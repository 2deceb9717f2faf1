#include "vxgui/platform/core7_files.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/text/FontCollection.h"
#include "vxgui/platform/gdiplus_fonts.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipNewInstalledFontCollection(GpFontCollection** collection) {
    return FlatCreate(collection, [&] { return HandOut(collection, New<FontCollection>(true)); });
}

GpStatus GdipNewPrivateFontCollection(GpFontCollection** collection) {
    return FlatCreate(collection, [&] { return HandOut(collection, New<FontCollection>(false)); });
}

GpStatus GdipDeletePrivateFontCollection(GpFontCollection** collection) {
    if (!collection) return InvalidParameter;
    const GpStatus status = FlatDelete<FontCollection>(*collection);
    if (status == Ok) *collection = nullptr;
    return status;
}

GpStatus GdipGetFontCollectionFamilyCount(GpFontCollection* collection, INT* count) {
    return FlatGet<FontCollection>(
        collection, count, [](FontCollection& found) { return static_cast<INT>(found.Count()); });
}

GpStatus GdipGetFontCollectionFamilyList(GpFontCollection* collection, INT sought,
                                         GpFontFamily** families, INT* numFound) {
    return FlatOn<FontCollection>(collection, [&](FontCollection& found) {
        if (sought < 0 || !families || !numFound) return InvalidParameter;
        *numFound = static_cast<INT>(found.List(families, static_cast<size_t>(sought)));
        return Ok;
    });
}

GpStatus GdipPrivateAddFontFile(GpFontCollection* collection, const WCHAR* filename) {
    return FlatOn<FontCollection>(collection, [&](FontCollection& found) {
        ByteArray bytes;
        if (!filename) return InvalidParameter;
        if (!core7::ReadWholeFile(filename, &bytes)) return FileNotFound;
        return found.Add(bytes.data(), bytes.size()) ? Ok : NotTrueTypeFont;
    });
}

GpStatus GdipPrivateAddMemoryFont(GpFontCollection* collection, const void* memory, INT length) {
    return FlatOn<FontCollection>(collection, [&](FontCollection& found) {
        if (!memory || length <= 0) return InvalidParameter;
        return found.Add(memory, static_cast<size_t>(length)) ? Ok : NotTrueTypeFont;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
