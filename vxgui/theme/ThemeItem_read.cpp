#include <algorithm>

#include "vxgui/base/Attempt.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Require.h"
#include "vxgui/base/VariantValue.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

constexpr char kReading[] = "ThemeItem.ReadProperties";

int32_t Number(const ole::PropertyBag& bag, const String& key, int32_t fallback) {
    return IntegerFrom(bag.ReadProperty(key, fallback), kReading);
}

uint8_t AlphaOf(const ole::PropertyBag& bag, const char* key) {
    return static_cast<uint8_t>(Number(bag, key, 255));  // the low eight bits
}

Margin MarginOf(const ole::PropertyBag& bag, const String& name) {
    const auto side = [&](const char* key) { return Number(bag, name + key, 0); };
    return {side("Left"), side("Top"), side("Right"), side("Bottom")};
}

/// False, with the table as it was, for what is no byte array.
bool ReadTable(const ole::PropertyBag& bag, const char* key, FrameTable& table) {
    const Variant value = bag.ReadProperty(key);
    const auto* entries = value.As<ByteArray>();
    if (!entries) return false;
    std::copy_n(entries->begin(), std::min(entries->size(), table.frames.size()),
                table.frames.begin());
    return true;
}

/// The bag that is kept under a key; none when there is none. Raises for what is no bag.
Ref<ole::PropertyBag> InnerBag(const ole::PropertyBag& bag, const String& key) {
    const Variant value = bag.ReadProperty(key);
    const auto* contents = value.As<ByteArray>();
    if (!contents || contents->empty()) return nullptr;
    const Ref<ole::PropertyBag> inner = New<ole::PropertyBag>();
    inner->Contents(*contents);
    return inner;
}

// What can't be read costs itself alone.

void ReadSurfaceBag(const ole::PropertyBag& bag, const char* key, Ref<cAlphaDIBSection>& surface) {
    Attempt([&] {
        const Ref<ole::PropertyBag> inner = InnerBag(bag, key);
        if (!inner) return;
        surface = New<cAlphaDIBSection>();
        surface->ReadProperties(inner);
    });
}

template <class Part, class Take>
void ReadPart(const ole::PropertyBag& bag, const String& key, Take take) {
    Attempt([&] {
        const Ref<ole::PropertyBag> inner = InnerBag(bag, key);
        if (!inner) return;
        const Ref<Part> part = New<Part>();
        part->ReadProperties(inner);
        take(part);
    });
}

}  // namespace

void ThemeItem::ReadPropertiesRECT(const Ref<ole::PropertyBag>& PropBag, gdi::RECT& rc,
                                   const String& Name) {
    const Margin margin = MarginOf(Require(PropBag, kReading), Name);
    rc = {margin.left, margin.top, margin.right, margin.bottom};
}

void ThemeItem::ReadProperties(const Ref<ole::PropertyBag>& PropBag) try {
    const KeepAlive keep(this);
    const Variant version = Require(PropBag, kReading).ReadProperty("Version", 1);
    const bool first = version == Variant(1);
    if (!first && version != Variant(2)) return;
    ReadProperties_v1(PropBag);
    // The first version had one direction for both strips.
    if (first && FrameVert()) GlyphFrameVert(-1);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.ReadProperties");
}

void ThemeItem::ReadProperties_v1(const Ref<ole::PropertyBag>& PropBag) try {
    const KeepAlive keep(this);
    const ole::PropertyBag& bag = Require(PropBag, kReading);
    ReadNumbers(bag);
    ReadStrips(bag);
    ReadStates(bag);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.ReadProperties");
}

// Past the setters: what they would refuse is taken as it stands, and nothing is premultiplied.
void ThemeItem::ReadNumbers(const ole::PropertyBag& bag) {
    contentMargin_ = MarginOf(bag, "ContentMargin");
    backgroundEffect_ = Number(bag, "BackgroundEffect", 0);
    imageMargin_ = MarginOf(bag, "ImageMargin");
    glyphMargin_ = MarginOf(bag, "GlyphMargin");
    iconMargin_ = MarginOf(bag, "IconMargin");
    iconTransMode_ = Number(bag, "IconTransMode", 2);
    iconAlign_ = Number(bag, "IconAlign", 1);
    iconWidth_ = Number(bag, "IconWidth", 0);
    iconHeight_ = Number(bag, "IconHeight", 0);
    imageFlags_ = static_cast<uint32_t>(Number(bag, "ImageFlags", 0));
    imageAlpha_ = AlphaOf(bag, "ImageAlpha");
    glyphAlpha_ = AlphaOf(bag, "GlyphAlpha");
    frameCount_ = Number(bag, "FrameCount", 0);
    frames_.order = Number(bag, "FrameOrder", 0);
    glyphFrames_.order = Number(bag, "GlyphFrameOrder", frames_.order);
}

void ThemeItem::ReadStrips(const ole::PropertyBag& bag) {
    if (frames_.order == -1) ReadTable(bag, "FrameIndex", frames_);
    if (ReadTable(bag, "GlyphFrameIndex", glyphFrames_)) glyphFrames_.order = -1;
    ReadSurfaceBag(bag, "ImageBag", image_);
    ReadSurfaceBag(bag, "GlyphBag", glyph_);
    Attempt([&] { glyphAlign_ = Number(bag, "GlyphAlign", 1); });
    Attempt([&] { glyphFrameCount_ = Number(bag, "GlyphFrames", frameCount_); });
}

void ThemeItem::ReadStates(const ole::PropertyBag& bag) {
    for (int32_t state = E_ItemStateNormal; state <= E_ItemStateGroup; ++state) {
        const String name = StateName(state);
        ReadPart<LFont>(bag, "Font" + name,
                        [&](const Ref<LFont>& font) { StateFont(state, font); });
        ReadPart<TextStyle>(bag, "TextStyle" + name,
                            [&](const Ref<TextStyle>& style) { StateTextStyle(state, style); });
    }
}

}  // namespace vxgui
