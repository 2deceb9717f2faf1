#include "tools/vxgui/SkinInfo.h"

#include <algorithm>
#include <set>

#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {
namespace {

std::string Counted(size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

template <class Pool>
size_t CountOf(const Ref<Pool>& pool) {
    return pool ? static_cast<size_t>(pool->Count()) : 0;
}

std::string StripOf(const char* name, const Ref<cAlphaDIBSection>& strip, int32_t frames) {
    if (!strip) return {};
    return std::string(", ") + name + " " + std::to_string(strip->Width()) + "x" +
           std::to_string(strip->Height()) + " of " +
           Counted(static_cast<size_t>(std::max(frames, 0)), "frame");
}

size_t PicturesOf(const Skin& skin) {
    std::set<const cAlphaDIBSection*> pictures;
    for (const SkinItem& item : skin.items) {
        pictures.insert(item.item->Image().get());
        pictures.insert(item.item->Glyph().get());
    }
    pictures.erase(nullptr);
    return pictures.size();
}

}  // namespace

void TellSkin(const ByteArray& bytes, const std::string& file, std::ostream& out) {
    const Skin skin = SkinOfCompiled(bytes, file);
    out << file << ": compiled skin, " << Counted(skin.items.size(), "item") << ", "
        << Counted(CountOf(skin.set->Fonts()), "font") << ", "
        << Counted(CountOf(skin.set->TextStyles()), "text style") << ", "
        << Counted(PicturesOf(skin), "picture") << "\n";
    for (const SkinItem& item : skin.items) {
        out << "  " << item.name.Utf8()
            << StripOf("image", item.item->Image(), item.item->FrameCount())
            << StripOf("glyph", item.item->Glyph(), item.item->GlyphFrames()) << "\n";
    }
}

}  // namespace vxgui::tool
