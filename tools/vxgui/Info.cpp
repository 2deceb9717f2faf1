#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "tools/vxgui/Batch.h"
#include "tools/vxgui/Commands.h"
#include "tools/vxgui/PictureDepth.h"
#include "tools/vxgui/PictureFile.h"
#include "tools/vxgui/SkinInfo.h"
#include "tools/vxgui/StoredSurface.h"
#include "tools/vxgui/StraightSurface.h"
#include "vxgui/theme/CompiledSkin.h"

namespace vxgui::tool {
namespace {

std::string Hex(uint32_t value, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*X", digits, value);
    return text;
}

// As colours are written elsewhere: red first, which a COLORREF has lowest.
std::string ColourName(COLORREF colour) {
    return "#" + Hex((colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF), 6);
}

std::string SizeAndDepth(const cAlphaDIBSection& surface, int32_t depth) {
    return std::to_string(surface.Width()) + "x" + std::to_string(std::abs(surface.Height())) +
           ", " + std::to_string(depth) + " bits a pixel";
}

std::string AlphaOf(const cAlphaDIBSection& surface, const std::string& file) {
    return HasTransparency(*StraightCopy(surface, file)) ? ", alpha" : ", no alpha";
}

std::string NamesOf(uint32_t surfaceFlags) {
    std::string names;
    if (surfaceFlags & cAlphaDIBSection::kUseDrawDib) names += ", UseDrawDib";
    if (surfaceFlags & cAlphaDIBSection::kUseMsImag32) names += ", UseMsImag32";
    if (surfaceFlags & cAlphaDIBSection::kPremultiplied) names += ", premultiplied";
    return names;
}

std::string Packing(const ByteArray& block, const ByteArray& plain) {
    if (!IsCompressed(block)) return "not compressed";
    return "compressed, " + std::to_string(block.size()) + " bytes for " +
           std::to_string(plain.size());
}

void TellSurface(const ByteArray& block, const std::string& file, const std::string& indent,
                 std::ostream& out) {
    const ByteArray plain = PlainBlock(block, file);
    const StoredHeader header = HeaderOf(plain, file);
    const Ref<cAlphaDIBSection> surface = SurfaceOf(plain, file);
    out << SizeAndDepth(*surface, header.bitmap.biBitCount) << AlphaOf(*surface, file) << "\n"
        << indent << "version " << header.version << ", flags " << header.flags << ", "
        << Packing(block, plain) << "\n"
        << indent << "surface flags 0x" << Hex(header.surfaceFlags, 8)
        << NamesOf(header.surfaceFlags) << "\n"
        << indent << "key colour " << ColourName(header.keyColour) << "\n"
        << indent << "pixels " << header.bitmap.biSizeImage << " bytes, "
        << (header.bitmap.biHeight < 0 ? "top" : "bottom") << " row first\n";
}

/// What a bag's value is, in a few words.
struct ValueName {
    std::string operator()(bool value) const { return value ? "Boolean, true" : "Boolean, false"; }
    std::string operator()(int32_t value) const {
        return "32-bit integer, " + std::to_string(value);
    }
    std::string operator()(float) const { return "float, 4 bytes"; }
    std::string operator()(double) const { return "float, 8 bytes"; }
    std::string operator()(const String& value) const {
        return "text, " + std::to_string(value.size()) + " characters";
    }
    std::string operator()(const ByteArray& value) const {
        return "byte array, " + std::to_string(value.size()) + " bytes";
    }
    std::string operator()(const auto&) const { return "no value"; }
};

void TellBag(const ByteArray& bytes, const std::string& file, std::ostream& out) {
    const Ref<ole::PropertyBag> bag = BagOf(bytes, file);
    const std::vector<String> names = bag->Names();
    out << names.size() << (names.size() == 1 ? " value\n" : " values\n");
    for (const String& name : names) {
        const Variant value = bag->ReadProperty(name);
        out << "  " << name.Utf8() << ": " << std::visit(ValueName(), value.storage()) << "\n";
        const auto* block = value.As<ByteArray>();
        if (!block || !IsStoredSurface(*block)) continue;
        out << "    serialized surface, ";
        TellSurface(*block, file, "    ", out);
    }
}

void Tell(const std::string& file, std::ostream& out) {
    const ByteArray bytes = ReadFile(file);
    if (IsCompiledSkin(bytes)) return TellSkin(bytes, file, out);
    const PictureKind kind = RequiredKindOf(bytes, file);
    std::ostringstream text;
    text << file << ": " << NameOf(kind) << ", ";
    if (kind == PictureKind::Bag) {
        TellBag(bytes, file, text);
    } else if (kind == PictureKind::Surface) {
        TellSurface(bytes, file, "  ", text);
    } else {
        const Ref<cAlphaDIBSection> surface = PictureOf(bytes, kind, file);
        text << SizeAndDepth(*surface, DepthOf(bytes, kind)) << AlphaOf(*surface, file) << "\n";
    }
    out << text.str();
}

}  // namespace

void AddInfo(CLI::App& app, std::ostream& out) {
    const auto files = std::make_shared<std::vector<std::string>>();
    CLI::App* command = app.add_subcommand(
        "info",
        "Tell the kind, size, depth and alpha of pictures, and what property bags and compiled "
        "skins hold");
    command
        ->add_option("FILE", *files, "Picture, serialized surface, property bag or compiled skin")
        ->required();
    command->footer(
        "Examples:\n"
        "  vxgui info button.tga\n"
        "  vxgui info skins/aurora/*.tga button.adib button.bag");
    command->callback([files, &out] {
        ForEachFile(*files, [&out](const std::string& file) { Tell(file, out); });
    });
}

}  // namespace vxgui::tool
