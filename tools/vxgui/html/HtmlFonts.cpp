#include <algorithm>
#include <cstdlib>

#include "tools/vxgui/TransparentSheet.h"
#include "tools/vxgui/html/DataUri.h"
#include "tools/vxgui/html/HtmlLooks.h"
#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/Scaling.h"

namespace vxgui::tool {
namespace {

using kainjow::mustache::data;

const char* const kSample = "Sphinx of black quartz, judge my vow – 0123456789";
constexpr int32_t kBold = 600;

std::string DescriptionOf(const LFont& font) {
    std::string text = font.Name.empty() ? "the desktop's own font" : font.Name.Utf8();
    text += ", " + std::to_string(std::abs(font.Height)) +
            (font.Height > 0 ? " pixels with leading" : " pixels");
    if (font.Weight >= kBold) text += ", bold";
    if (font.Italic) text += ", italic";
    if (font.Underline) text += ", underlined";
    if (font.StrikeOut) text += ", struck out";
    return text;
}

constexpr uint32_t kFlags = DT_SINGLELINE | DT_NOPREFIX;
constexpr int32_t kRim = 2;

gdi::SIZE SizeOfSample(Ref<LFont> font) {
    const Ref<TextStyle> style = New<TextStyle>();
    const int32_t width = style->TextWidth(nullptr, kSample, kFlags, font);
    const int32_t height = style->TextHeight(nullptr, kSample, kFlags, font, width);
    return {std::max(width, 1) + 2 * kRim, std::max(height, 1) + 2 * kRim};
}

void PaintSample(Sheet& sheet, Ref<LFont> font) {
    PaintTransparent(sheet, [&](Sheet& ground) {
        New<TextStyle>()->DrawText(ground.dc(), kSample, kFlags, font, kRim, kRim, ground.width(),
                                   ground.height());
    });
}

/// Fonts by their names.
class Samples {
public:
    explicit Samples(double scale) : scaling_(scale) {}

    void Add(const std::string& name, const Ref<LFont>& font) {
        if (!font) return;
        const Ref<LFont> scaled = scaling_.Of(font);
        const gdi::SIZE size = SizeOfSample(scaled);
        Sheet sheet(size.cx, size.cy);
        PaintSample(sheet, scaled);
        data sample;
        sample.set("name", name);
        sample.set("description", DescriptionOf(*font));
        sample.set("src", DataUri(sheet));
        sample.set("width", AtScaleOne(size.cx));
        sample.set("height", AtScaleOne(size.cy));
        list_ << sample;
    }
    data List() const { return list_; }

private:
    std::string AtScaleOne(int32_t length) const {
        return std::to_string(ScaledLength(length, 1 / scaling_.Factor()));
    }

    Scaling scaling_;
    data list_{data::type::list};
};

void AddSet(Samples& samples, const ThemeSet& set) {
    const Ref<LFonts> fonts = set.Fonts();
    for (int32_t n = 1; fonts && n <= fonts->Count(); ++n)
        samples.Add("Font " + std::to_string(n), fonts->Item(n));
}

// The file says which there are; see `AddSet` of a set, which can count its own.
void AddDesktop(Samples& samples, core7::DefineFile& file, SkinDef& skin) {
    const auto has = [&](const char* prefix, int32_t n) {
        return file.PositionOf(prefix + String::FromInt(n)).line > 0;
    };
    for (int32_t n = 0; has("Font", n); ++n) samples.Add("Font " + std::to_string(n), skin.Font(n));
    for (int32_t n = 0; has("SystemFont", n); ++n)
        samples.Add("System font " + std::to_string(n), skin.SystemFont(n));
}

}  // namespace

data HtmlFonts(const Skin& skin, double scale) {
    Samples samples(scale);
    if (skin.set) AddSet(samples, *skin.set);
    if (skin.desktop) AddDesktop(samples, *skin.file, *skin.desktop);
    return samples.List();
}

}  // namespace vxgui::tool
