#include <array>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/frame/Services.h"
#include "vxgui/text/ColorText.h"
#include "vxgui/text/DefineSection.h"
#include "vxgui/theme/SkinConfinement.h"
#include "vxgui/theme/ThemeItem.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {
namespace {

int32_t ColourOf(const DefineSection& read, const char* key) {
    String text = read.Text(key);
    return ParseColorText(text);
}

// The numbers of a list. It must have at least `Count` parts; more are ignored.
template <size_t Count>
std::array<double, Count> NumbersOf(const String& list) {
    const std::vector<String> parts = list.Split(u',');
    if (parts.size() < Count)
        throw Error(ErrorNumber::Subscript, "ThemeItem", "List too short: " + list);
    std::array<double, Count> numbers;
    for (size_t i = 0; i < Count; ++i) numbers[i] = LeadingNumber(parts[i]);
    return numbers;
}

template <class Set>
void MarginFrom(const DefineSection& read, const char* key, Set set) {
    const String list = read.Text(key);
    if (list.empty()) return;
    const auto [left, top, right, bottom] = NumbersOf<4>(list);
    set(RoundHalfEven(left), RoundHalfEven(top), RoundHalfEven(right), RoundHalfEven(bottom));
}

Variant PartsOf(const String& list) {
    VariantArray parts;
    for (const String& part : list.Split(u',')) parts.push_back(part);
    return parts;
}

// A surface with the picture on it, or none when it can't be loaded. The background stands under
// translucent pixels while the file is decoded.
Ref<cAlphaDIBSection> Load(const String& basePath, const String& name, int32_t background) {
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->TransparentColor(background);
    const String path = gServices.pathService().TheFileSystem().BuildPath(basePath, name);
    if (!MaySkinRead(basePath, path)) return nullptr;
    return surface->CreateFromPictureFile(path) ? surface : nullptr;
}

// Calls `add(scale, strip)` for each strip for another scale that the section lists and that is
// there.
template <class Add>
void LoadStrips(const DefineSection& read, const String& kind, const char* imageKey,
                const String& basePath, Add add) {
    const std::vector<double> scales = ScalesIn(read.Text((kind + "Scales").Utf8().c_str()));
    if (scales.empty()) return;
    const String name = read.Text(imageKey);
    const int32_t background = ColourOf(read, (kind + "BackColor").Utf8().c_str());
    for (const double scale : scales) {
        const Ref<cAlphaDIBSection> strip = Load(basePath, NameAtScale(name, scale), background);
        if (strip) add(scale, strip);
    }
}

// Shares the pool's items with the states: the n-th number of the list belongs to state n.
template <class Pool>
void Share(const String& list, const char* prefix, const Ref<Pool>& pool, const Ref<Pool>& own) {
    if (list.empty()) return;
    if (!pool) throw Error(ErrorNumber::ObjectNotSet, "ThemeItem", String("No pool for ") + prefix);
    int32_t state = 0;
    for (const String& part : list.Split(u',')) {
        const auto number = RoundHalfEven(LeadingNumber(part));
        const auto item = pool->Item(NumberedSection(prefix, number));
        if (item) own->AddItem(item, ThemeItem::StateName(state));
        ++state;
    }
}

}  // namespace

void ThemeItem::ReadImage(const DefineSection& read, const String& basePath) {
    const String name = read.Text("Image");
    if (name.empty()) return;
    const Ref<cAlphaDIBSection> surface = Load(basePath, name, ColourOf(read, "ImageBackColor"));
    if (!surface) return;
    if (read.Integer("PreMultiplyAlpha") != 0) surface->PreMultiplyAlpha();
    image_ = surface;
    frameCount_ = read.Integer("Frames");
    FrameVert(read.Integer("FrameVert"));
    TransMode(read.Integer("TransMode", "2"));
    imageAlpha_ = static_cast<uint8_t>(read.Integer("ImageAlpha", "255"));
    if (!read.Text("TransColor").empty()) image_->TransparentColor(ColourOf(read, "TransColor"));
    MarginFrom(read, "ImageMargin", [&](auto... sides) { SetImageMargin(sides...); });
    if (const String list = read.Text("ImageTile"); !list.empty()) {
        // Any part but 0 says yes for its edge, a fraction too.
        const auto [tile, left, top, right, bottom] = NumbersOf<5>(list);
        SetTile(RoundHalfEven(tile), left != 0, top != 0, right != 0, bottom != 0);
    }
}

void ThemeItem::ReadGlyph(const DefineSection& read, const String& basePath) {
    const String name = read.Text("GlyphImage");
    if (name.empty()) return;
    const Ref<cAlphaDIBSection> surface = Load(basePath, name, ColourOf(read, "GlyphBackColor"));
    if (!surface) return;
    if (read.Integer("GlyphPreMultiplyAlpha") != 0) surface->PreMultiplyAlpha();
    glyph_ = surface;
    glyphFrameCount_ = read.Integer("GlyphFrames", String::FromInt(frameCount_));
    GlyphFrameVert(read.Integer("GlyphFrameVert"));
    GlyphTransMode(read.Integer("GlyphTransMode", "2"));
    glyphAlpha_ = static_cast<uint8_t>(read.Integer("GlyphAlpha", "255"));
    if (!read.Text("GlyphTransColor").empty()) {
        glyph_->TransparentColor(ColourOf(read, "GlyphTransColor"));
    }
    MarginFrom(read, "GlyphMargin", [&](auto... sides) { SetGlyphMargin(sides...); });
    glyphAlign_ = read.Integer("GlyphAlign", "");
}

void ThemeItem::FromThemeDefine(const Ref<core7::DefineFile>& DefineFile, const String& Section,
                                const Ref<ThemeSet>& Set, const String& BasePath) try {
    const DefineSection read(DefineFile, Section, "ThemeItem");
    ReadImage(read, BasePath);
    ReadGlyph(read, BasePath);
    MarginFrom(read, "ContentMargin", [&](auto... sides) { SetContentMargin(sides...); });
    // Here the keys hold lists of frames, one for each state.
    if (const String list = read.Text("FrameOrder"); !list.empty()) StateFrames(PartsOf(list));
    if (const String list = read.Text("GlyphFrameOrder"); !list.empty())
        GlyphStateFrames(PartsOf(list));
    fonts_ = New<LFonts>();
    Share(read.Text("Fonts"), "Font_", Set->Fonts(), fonts_.Own());
    textStyles_ = New<vxgui::TextStyles>();
    Share(read.Text("TextStyles"), "TextStyle_", Set->TextStyles(), textStyles_.Own());
    if (image_)
        LoadStrips(read, "Image", "Image", BasePath, [&](auto... at) { AddImageStrip(at...); });
    if (glyph_)
        LoadStrips(read, "Glyph", "GlyphImage", BasePath,
                   [&](auto... at) { AddGlyphStrip(at...); });
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.FromThemeDefine");
}

}  // namespace vxgui
