#pragma once

#include <string>
#include <string_view>

#include "vxgui/platform/gdi/text/LruCache.h"
#include "vxgui/platform/gdi/text/ShapedText.h"

namespace vxgui::gdi {

struct ShapeLookup {
    uint64_t font;
    bool rightToLeft;
    std::u16string_view text;
};
struct ShapeKey {
    uint64_t font;
    bool rightToLeft;
    std::u16string text;
    operator ShapeLookup() const { return {font, rightToLeft, text}; }
};
struct ShapeHash {
    using is_transparent = void;
    size_t operator()(const ShapeLookup& key) const {
        const size_t text = std::hash<std::u16string_view>()(key.text);
        return MixHash(MixHash(text, key.font), key.rightToLeft);
    }
};
struct ShapeEqual {
    using is_transparent = void;
    bool operator()(const ShapeLookup& a, const ShapeLookup& b) const {
        return a.font == b.font && a.rightToLeft == b.rightToLeft && a.text == b.text;
    }
};

/// The lines that a thread has shaped lately. A repaint draws the same captions again and again,
/// and each is measured before it is drawn.
class ShapedTextCache {
public:
    /// 16-bit units, all lines together; a glyph or two stands behind each.
    static constexpr size_t kBound = 64 * 1024;
    /// A longer line isn't kept.
    static constexpr size_t kLongestLine = 512;

    ShapedTextRef* Find(const ShapeLookup& key) { return lines_.Find(key); }
    void Insert(const ShapeLookup& key, ShapedTextRef line) {
        if (key.text.size() > kLongestLine) return;
        constexpr size_t kEntry = 16;  // what an entry weighs besides its text
        lines_.Insert({key.font, key.rightToLeft, std::u16string(key.text)}, std::move(line),
                      key.text.size() + kEntry);
    }
    size_t Cost() const { return lines_.Cost(); }

private:
    LruCache<ShapeKey, ShapedTextRef, ShapeHash, ShapeEqual> lines_{kBound};
};

}  // namespace vxgui::gdi
