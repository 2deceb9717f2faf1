#include "tools/vxgui/PictureFile.h"

#include "tools/vxgui/DecodedImage.h"
#include "tools/vxgui/Sheet.h"
#include "tools/vxgui/StoredSurface.h"
#include "tools/vxgui/StraightSurface.h"
#include "tools/vxgui/TgaFile.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/platform/core7.h"

namespace vxgui::tool {
namespace {

Ref<cAlphaDIBSection> SurfaceInBag(const ByteArray& bytes, const std::string& path) {
    const std::optional<ByteArray> block = SurfaceBlockOf(*BagOf(bytes, path));
    if (!block) {
        Fail(path, "the property bag holds no surface: bytes named cAlphaDIBSection were expected");
    }
    return SurfaceOf(PlainBlock(*block, path), path);
}

void WritePng(cAlphaDIBSection& straight, const std::string& path) {
    Sheet sheet(straight.Width(), straight.Height());
    for (int32_t y = 0; y < sheet.height(); ++y) {
        for (int32_t x = 0; x < sheet.width(); ++x)
            sheet.At(x, y) = static_cast<uint32_t>(straight.GetPixel(x, y));
    }
    sheet.WritePng(path);
}

ByteArray BytesOf(cAlphaDIBSection& surface, PictureKind form, const std::string& path) {
    ByteArray bytes;
    if (form == PictureKind::Surface) {
        surface.ToByteArray(bytes, 0);
        return bytes;
    }
    const Ref<cAlphaDIBSection> straight = StraightCopy(surface, path);
    if (form == PictureKind::Tga) return TgaOf(*straight);
    straight->SaveToByteArray(bytes);
    return bytes;
}

}  // namespace

ByteArray ReadFile(const std::string& path) {
    ByteArray bytes;
    if (!core7::ReadWholeFile(path, &bytes)) FailBySystem(path, "can't be read");
    return bytes;
}

PictureKind RequiredKindOf(const ByteArray& bytes, const std::string& path) {
    if (const std::optional<PictureKind> kind = KindOf(bytes, path)) return *kind;
    Fail(path,
         "no picture: BMP, PNG, JPEG, GIF, TIFF, TGA, a serialized surface or a property bag "
         "was expected");
}

Ref<cAlphaDIBSection> PictureOf(const ByteArray& bytes, PictureKind kind, const std::string& path) {
    switch (kind) {
        case PictureKind::Tga:
            return ReadTga(bytes, path);
        case PictureKind::Surface:
            return SurfaceOf(PlainBlock(bytes, path), path);
        case PictureKind::Bag:
            return SurfaceInBag(bytes, path);
        default:
            return DecodeImage(bytes, kind, path);
    }
}

Ref<cAlphaDIBSection> ReadPicture(const std::string& path) {
    const ByteArray bytes = ReadFile(path);
    return PictureOf(bytes, RequiredKindOf(bytes, path), path);
}

std::optional<PictureKind> FormOf(const std::string& ending) {
    if (ending == "bmp") return PictureKind::Bmp;
    if (ending == "png") return PictureKind::Png;
    if (ending == "tga") return PictureKind::Tga;
    if (ending == "adib") return PictureKind::Surface;
    return std::nullopt;
}

void WritePicture(cAlphaDIBSection& surface, PictureKind form, const std::string& path) {
    if (form == PictureKind::Png) return WritePng(*StraightCopy(surface, path), path);
    const ByteArray bytes = BytesOf(surface, form, path);
    if (!core7::WriteWholeFile(path, bytes.data(), bytes.size())) {
        FailBySystem(path, "can't be written");
    }
}

}  // namespace vxgui::tool
