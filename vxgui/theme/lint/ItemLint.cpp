#include "vxgui/theme/lint/ItemLint.h"

#include <algorithm>

#include "vxgui/base/Attempt.h"
#include "vxgui/theme/lint/ValueCheck.h"

namespace vxgui::lint {
namespace {

constexpr const char* kSideNames[] = {"left", "top", "right", "bottom"};

String Decimal(int64_t number) { return String::FromInt(number); }

Variant ListOf(const String& list) {
    VariantArray parts;
    for (const String& part : list.Split(u',')) parts.push_back(part);
    return parts;
}

}  // namespace

const ItemDialect& ThemeSetDialect() {
    static const ItemDialect dialect{
        {"strip", "Image", "Frames", "FrameVert", "FrameOrder", "ImageScales", false},
        {"glyph's strip", "GlyphImage", "GlyphFrames", "GlyphFrameVert", "GlyphFrameOrder",
         "GlyphScales", false},
        {"image margins", {"ImageMargin", "ImageMargin", "ImageMargin", "ImageMargin"}},
        {"content margins", {"ContentMargin", "ContentMargin", "ContentMargin", "ContentMargin"}},
        true,
        false,
        ThemeItemKeys(),
        UisItemKeys()};
    return dialect;
}

const ItemDialect& UisDialect() {
    static const ItemDialect dialect{
        {"strip", "Image", "FrameCount", nullptr, nullptr, "ImageScales", true},
        {"glyph's strip", "GlyphImage", "GlyphFrames", nullptr, nullptr, "GlyphScales", true},
        {"image margins", {"LeftWidth", "TopHeight", "RightWidth", "BottomHeight"}},
        {"content margins", {"ContentLeft", "ContentTop", "ContentRight", "ContentBottom"}},
        false,
        true,
        UisItemKeys(),
        ThemeItemKeys()};
    return dialect;
}

ItemLint::ItemLint(Page& page, const String& section, const ItemDialect& dialect)
    : page_(page),
      section_(section),
      dialect_(dialect),
      image_(page, section, dialect.image),
      glyph_(page, section, dialect.glyph) {}

void ItemLint::Check(PictureShelf& shelf, const String& folder, const String& fallback,
                     const char* missing) {
    page_.CheckKeys(section_, {dialect_.keys}, dialect_.otherKeys);
    image_.Look(shelf, folder, fallback, missing);
    glyph_.Look(shelf, folder, {}, "");
    CheckNeeds();
    image_.CheckFrames(page_.Integer(section_, dialect_.image.frames));
    glyph_.CheckFrames(GlyphFrames());
    image_.CheckScales(shelf);
    glyph_.CheckScales(shelf);
    CheckStates();
    CheckMargins();
}

int32_t ItemLint::GlyphFrames() const {
    const char* key = dialect_.glyph.frames;
    const int32_t own = page_.Integer(section_, key);
    const bool borrows = dialect_.glyphBorrowsFrames ? own < 1 : !page_.Has(section_, key);
    return borrows ? image_.Frames() : own;
}

void ItemLint::CheckNeeds() {
    const auto check = [&](Needs needs, const StripLint& strip, const char* image) {
        if (strip.IsNamed()) return;
        for (const KeyRule& rule : dialect_.keys) {
            if (rule.needs == needs && page_.Has(section_, rule.name))
                page_.WarnAt(section_, rule.name,
                             String(rule.name) + " has no effect, since no " + image + " is named");
        }
    };
    check(Needs::Image, image_, dialect_.image.image);
    check(Needs::Glyph, glyph_, dialect_.glyph.image);
}

// An item of the same frames says which of them its states show.
void ItemLint::CheckStates() {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const auto order = [&](const StripKeys& keys) {
        return keys.order ? page_.Text(section_, keys.order) : String();
    };
    item->FrameCount(image_.Frames());
    item->GlyphFrames(glyph_.Frames());
    // A part that no byte can hold ends the loading; the list's own check has told it.
    Attempt([&] {
        if (const String list = order(dialect_.image); !list.empty())
            item->StateFrames(ListOf(list));
        if (const String list = order(dialect_.glyph); !list.empty())
            item->GlyphStateFrames(ListOf(list));
    });
    if (image_.IsWhole() && !image_.OrderIsBeyond())
        image_.CheckShown([&](int32_t state) { return item->StateFrame(state); });
    if (glyph_.IsWhole() && !glyph_.OrderIsBeyond())
        glyph_.CheckShown([&](int32_t state) { return item->GlyphStateFrame(state); });
}

// False when none is given, or not all of a list.
bool ItemLint::ReadSides(const MarginKeys& keys, Sides& sides) const {
    const auto given = [&](const char* key) { return page_.Has(section_, key); };
    if (std::ranges::none_of(keys.sides, given)) return false;
    if (!dialect_.marginsAreLists) {
        for (size_t i = 0; i < 4; ++i) sides[i] = page_.Integer(section_, keys.sides[i]);
        return true;
    }
    const std::vector<int32_t> numbers = NumbersOf(page_.Text(section_, keys.sides[0]));
    if (numbers.size() < 4) return false;
    std::copy_n(numbers.begin(), 4, sides.begin());
    return true;
}

// The key to blame for a pair of margins.
const char* ItemLint::KeyOf(const MarginKeys& keys, size_t first) const {
    return page_.Has(section_, keys.sides[first]) ? keys.sides[first] : keys.sides[first + 2];
}

// `first` is 0 for left and right, 1 for top and bottom.
void ItemLint::CheckImageMargin(const Sides& sides, size_t first, int32_t extent,
                                const char* wide) {
    const int64_t near = std::max(sides[first], 0), far = std::max(sides[first + 2], 0);
    if (near + far <= extent) return;
    const String frame = "a frame is " + Decimal(extent) + " " + wide + ", and ";
    for (const size_t side : {first, first + 2}) {
        const int64_t alone = side == first ? near : far;
        if (alone > extent)
            return page_.FailAt(
                section_, dialect_.imageMargin.sides[side],
                frame + "the " + kSideNames[side] + " margin alone takes " + Decimal(alone));
    }
    page_.FailAt(section_, KeyOf(dialect_.imageMargin, first),
                 frame + kSideNames[first] + " and " + kSideNames[first + 2] +
                     " margin together take " + Decimal(near + far));
}

void ItemLint::CheckMargins() {
    Sides sides{};
    if (!image_.IsWhole()) return;
    if (ReadSides(dialect_.imageMargin, sides)) {
        CheckImageMargin(sides, 0, image_.Width(), "wide");
        CheckImageMargin(sides, 1, image_.Height(), "high");
    }
    if (!ReadSides(dialect_.contentMargin, sides)) return;
    // Controls are often wider than a frame, with room for an icon at the side; but a caption that
    // has no room either way is a slip.
    const bool narrow = int64_t{sides[0]} + sides[2] >= image_.Width();
    const bool low = int64_t{sides[1]} + sides[3] >= image_.Height();
    if (narrow && low) {
        page_.WarnAt(section_, KeyOf(dialect_.contentMargin, 0),
                     "at the size of one frame, " + Decimal(image_.Width()) + "x" +
                         Decimal(image_.Height()) + ", the content margins leave no room");
    }
}

}  // namespace vxgui::lint
