#include "vxgui/platform/gdi/text/TextSpacing.h"

#include <algorithm>
#include <cstdlib>

#include "vxgui/base/Rounding.h"

namespace vxgui::gdi {
namespace {

/// Hands out the extra of one break after another: exactly the whole over the breaks it is meant
/// for, the remainder to the first ones.
class BreakShares {
public:
    explicit BreakShares(const TextSpacing& spacing)
        : share_(spacing.breakCount > 0 ? spacing.breakExtra / spacing.breakCount : 0),
          rest_(spacing.breakCount > 0 ? spacing.breakExtra % spacing.breakCount : 0) {
        const int taken = std::min(spacing.breaksBefore, std::abs(rest_));
        rest_ -= rest_ < 0 ? -taken : taken;
    }

    int Next() {
        const int one = (rest_ > 0) - (rest_ < 0);
        rest_ -= one;
        return share_ + one;
    }

private:
    const int share_;
    int rest_;  // what is left of the remainder
};

/// What each unit's character grows by.
std::vector<int32_t> Growth(const ShapedText& shaped, std::u16string_view text,
                            const TextSpacing& spacing) {
    std::vector<int32_t> growth(text.size());
    BreakShares shares(spacing);
    for (size_t i = 0; i < text.size(); ++i) {
        const bool secondOfPair = i > 0 && (text[i] & 0xFC00) == 0xDC00;
        if (spacing.given) growth[i] = WrapSub(spacing.given[i], shaped.advances[i]);
        if (!secondOfPair) growth[i] = WrapAdd(growth[i], spacing.extra);
        if (text[i] == kBreakCharacter) growth[i] = WrapAdd(growth[i], shares.Next());
    }
    return growth;
}

/// Gathers the growth of characters that were shaped together at the first of them.
void GatherClusters(const ShapedText& shaped, std::vector<int32_t>& growth) {
    std::vector<bool> starts(growth.size());
    for (const ShapedGlyph& glyph : shaped.glyphs) starts[static_cast<size_t>(glyph.unit)] = true;
    size_t first = 0;
    for (size_t i = 0; i < growth.size(); ++i) {
        if (starts[i]) first = i;
        if (first == i) continue;
        growth[first] = WrapAdd(growth[first], growth[i]);
        growth[i] = 0;
    }
}

}  // namespace

ShapedTextRef WithSpacing(ShapedTextRef shaped, std::u16string_view text,
                          const TextSpacing& spacing) {
    if (spacing.None()) return shaped;
    std::vector<int32_t> growth = Growth(*shaped, text, spacing);
    GatherClusters(*shaped, growth);
    auto spaced = std::make_shared<ShapedText>(*shaped);
    for (ShapedGlyph& glyph : spaced->glyphs) {
        if (glyph.endsCluster) {
            glyph.advance = WrapAdd(glyph.advance, growth[static_cast<size_t>(glyph.unit)]);
        }
    }
    for (size_t i = 0; i < growth.size(); ++i) {
        spaced->advances[i] = WrapAdd(spaced->advances[i], growth[i]);
        spaced->width += growth[i];
    }
    return spaced;
}

}  // namespace vxgui::gdi
