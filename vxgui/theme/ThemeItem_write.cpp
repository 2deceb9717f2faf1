#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Require.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

constexpr char kWriting[] = "ThemeItem.WriteProperties";
constexpr int32_t kVersion = 2;

/// Whatever is kept within an item is kept in a bag of its own.
template <class Part, class... Flags>
void WriteInner(ole::PropertyBag& bag, const String& key, const Ref<Part>& part, Flags... flags) {
    const Ref<ole::PropertyBag> inner = New<ole::PropertyBag>();
    part->WriteProperties(inner, flags...);
    bag.WriteProperty(key, inner->Contents());
}

/// What the reader is known to hold needn't be stored.
template <class Part>
void WriteUnlessKnown(ole::PropertyBag& bag, const String& key, const Ref<Part>& part,
                      const Ref<Part>& known) {
    if (part && !(known && known->Equal(part))) WriteInner(bag, key, part);
}

void WriteMargin(ole::PropertyBag& bag, const String& name, const Margin& margin) {
    const auto write = [&](const char* side, int32_t value) {
        bag.WriteProperty(name + side, value, 0);
    };
    write("Left", margin.left);
    write("Top", margin.top);
    write("Right", margin.right);
    write("Bottom", margin.bottom);
}

ByteArray Entries(const FrameTable& table) { return {table.frames.begin(), table.frames.end()}; }

void WriteOrder(ole::PropertyBag& bag, const FrameTable& table, const char* orderKey,
                const char* tableKey) {
    bag.WriteProperty(orderKey, table.order, 0);
    if (table.order == -1) bag.WriteProperty(tableKey, Entries(table));
}

}  // namespace

void ThemeItem::WritePropertiesRECT(const Ref<ole::PropertyBag>& PropBag, const gdi::RECT& rc,
                                    const String& Name) {
    WriteMargin(Require(PropBag, kWriting), Name, {rc.left, rc.top, rc.right, rc.bottom});
}

void ThemeItem::WriteProperties(const Ref<ole::PropertyBag>& PropBag,
                                const Ref<cAlphaDIBSection>& DefImage, const Ref<LFont>& DefFont,
                                const Ref<TextStyle>& DefTextStyle, int32_t Flags) try {
    const KeepAlive keep(this);
    ole::PropertyBag& bag = Require(PropBag, kWriting);
    if (image_ && !image_->Equal(DefImage)) WriteInner(bag, "ImageBag", image_, Flags);
    bag.WriteProperty("Version", kVersion);
    WriteNumbers(bag);
    WriteStrips(bag, Flags);
    WriteIcon(bag);
    MinimizeFonts();
    MinimizeTextStyles();
    WriteStates(bag, DefFont, DefTextStyle);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.WriteProperties");
}

void ThemeItem::WriteNumbers(ole::PropertyBag& bag) const {
    WriteMargin(bag, "ImageMargin", imageMargin_);
    WriteMargin(bag, "GlyphMargin", glyphMargin_);
    WriteMargin(bag, "ContentMargin", contentMargin_);
    WriteMargin(bag, "IconMargin", iconMargin_);
    bag.WriteProperty("BackgroundEffect", backgroundEffect_, 0);
    bag.WriteProperty("ImageFlags", static_cast<int32_t>(imageFlags_), 0);
    bag.WriteProperty("ImageAlpha", int32_t{imageAlpha_}, 255);
}

void ThemeItem::WriteStrips(ole::PropertyBag& bag, int32_t flags) const {
    bag.WriteProperty("FrameCount", frameCount_, 0);
    WriteOrder(bag, frames_, "FrameOrder", "FrameIndex");
    if (glyph_) WriteInner(bag, "GlyphBag", glyph_, flags);
    // Read with the image's order as its default: a glyph order of 0 is lost, on purpose.
    WriteOrder(bag, glyphFrames_, "GlyphFrameOrder", "GlyphFrameIndex");
    bag.WriteProperty("GlyphFrames", glyphFrameCount_, frameCount_);
    bag.WriteProperty("GlyphAlpha", int32_t{glyphAlpha_}, 255);
    bag.WriteProperty("GlyphAlign", glyphAlign_, 1);
}

void ThemeItem::WriteIcon(ole::PropertyBag& bag) const {
    bag.WriteProperty("IconAlign", iconAlign_, 1);
    bag.WriteProperty("IconTransMode", iconTransMode_, 2);
    bag.WriteProperty("IconWidth", iconWidth_, 0);
    // The width again, on purpose: only it counts in drawing.
    bag.WriteProperty("IconHeight", iconWidth_, 0);
}

void ThemeItem::WriteStates(ole::PropertyBag& bag, const Ref<LFont>& knownFont,
                            const Ref<TextStyle>& knownStyle) const {
    for (int32_t state = E_ItemStateNormal; state <= E_ItemStateGroup; ++state) {
        const String name = StateName(state);
        const bool isNormal = state == E_ItemStateNormal;
        const bool asksForStyle = isNormal || state == E_ItemStateDisabled;
        if (fonts_)
            WriteUnlessKnown(bag, "Font" + name, fonts_.Get()->Item(name),
                             isNormal ? knownFont : nullptr);
        if (textStyles_)
            WriteUnlessKnown(bag, "TextStyle" + name, textStyles_.Get()->Item(name),
                             asksForStyle ? knownStyle : nullptr);
    }
}

}  // namespace vxgui
