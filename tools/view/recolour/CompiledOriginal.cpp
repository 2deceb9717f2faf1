#include "tools/view/recolour/CompiledOriginal.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "tools/vxgui/PictureFile.h"
#include "tools/vxgui/StraightSurface.h"
#include "vxgui/theme/CompiledSkin.h"

namespace vxgui::view {
namespace {

/// The surfaces of a set with the keys that items see in them, and its text styles, each once.
struct Parts {
    std::map<cAlphaDIBSection*, KeyColours> surfaces;
    std::set<TextStyle*> styles;

    explicit Parts(ThemeSet& set) {
        if (set.TextStyles()) AddStyles(*set.TextStyles());
        if (!set.ThemeItems()) return;
        for (const Ref<ThemeItem>& item : *set.ThemeItems()) {
            AddSurface(item->Image(), item->TransMode());
            AddSurface(item->Glyph(), item->GlyphTransMode());
            AddStyles(*item->TextStyles());
        }
    }

private:
    void AddSurface(const Ref<cAlphaDIBSection>& surface, int32_t mode) {
        if (!surface) return;
        KeyColours& keys = surfaces[surface.get()];
        const auto key = static_cast<uint32_t>(surface->TransparentColor());
        if (mode == Trans) keys.push_back((key & 255) << 16 | (key & 0xFF00) | (key >> 16 & 255));
    }
    void AddStyles(TextStyles& all) {
        for (const Ref<TextStyle>& style : all) styles.insert(style.get());
    }
};

void RecolourSurface(cAlphaDIBSection& surface, const Recolour& how, const KeyColours& keys) {
    const Ref<cAlphaDIBSection> straight = tool::StraightCopy(surface, "a picture of the skin");
    const ARGBArray rows = straight->GetARGBArray();
    for (int32_t row = 0; row < rows.Rows(); ++row)
        RecolourPixels(rows.Run(row, 0, rows.Columns() - 1), how, keys);
    if (surface.Flags() & cAlphaDIBSection::kPremultiplied) straight->PreMultiplyAlpha();
    const ARGBArray to = surface.GetARGBArray();
    for (int32_t row = 0; row < std::min(rows.Rows(), to.Rows()); ++row)
        std::ranges::copy(rows.Run(row, 0, rows.Columns() - 1),
                          to.Run(row, 0, to.Columns() - 1).begin());
}

// System colours are the desktop's.
void RecolourField(int32_t& colour, const Recolour& how) {
    if ((colour & ~0xFFFFFF) == 0) colour = RecolouredRef(colour, how);
}

}  // namespace

CompiledOriginal::CompiledOriginal(const std::string& path)
    : name_(std::filesystem::path(path).filename().string()), bytes_(tool::ReadFile(path)) {}

std::string CompiledOriginal::Write(const std::string& folder, const Recolour& how, Extent) const {
    const CompiledSkin skin = CompiledSkinFrom(bytes_);
    if (!how.IsNone()) {
        const Parts parts(*skin.set);
        for (const auto& [surface, keys] : parts.surfaces) RecolourSurface(*surface, how, keys);
        for (TextStyle* const style : parts.styles) {
            RecolourField(style->TextColor, how);
            RecolourField(style->ShadowColor, how);
        }
    }
    const std::string path = (std::filesystem::path(folder) / name_).string();
    SaveCompiledSkin(skin, path);
    return path;
}

}  // namespace vxgui::view
