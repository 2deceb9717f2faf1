#include "vxgui/platform/gdi/text/LineImages.h"

#include <algorithm>

namespace vxgui::gdi {
namespace {

/// Where a glyph's image lies, from the text's pen: rows count downwards.
struct Place {
    int64_t left, top, right, bottom;
};

Place PlaceOf(const GlyphImage& glyph, int64_t along, int64_t above) {
    const int64_t left = along + glyph.left, top = -above - glyph.top;
    return {left, top, left + glyph.width, top + glyph.rows};
}

/// Goes over the glyphs of a text that leave any ink.
class Inked {
public:
    Inked(GlyphCache& glyphs, const RealizedFont& font, const ShapedText& shaped)
        : glyphs_(glyphs), font_(font), shaped_(shaped) {}

    /// Calls `visit(image, place)` for each; false when one can't be kept.
    template <class Visit>
    bool ForEach(Visit visit) const {
        int64_t along = 0;
        for (const ShapedGlyph& glyph : shaped_.glyphs) {
            const GlyphImage* const image = Image(glyph);
            if (!image) return false;
            if (image->width > 0) visit(*image, PlaceOf(*image, along + glyph.dx, glyph.dy));
            along += glyph.advance;
        }
        return true;
    }

private:
    const GlyphImage* Image(const ShapedGlyph& glyph) const {
        static const GlyphImage none;
        return glyph.ink ? glyphs_.Find(font_.Face(glyph.face), glyph.index) : &none;
    }

    GlyphCache& glyphs_;
    const RealizedFont& font_;
    const ShapedText& shaped_;
};

/// Images of one size, the least that all glyphs fit in.
class Layers {
public:
    explicit Layers(const Place& box) : box_(box) {}

    /// Each glyph comes behind all those that it meets. False when that takes too many images.
    bool Add(const GlyphImage& glyph, const Place& place) {
        size_t layer = layers_.size();
        while (layer > 0 && !Meets(layers_[layer - 1], glyph, place)) --layer;
        if (layer == kMost) return false;
        if (layer == layers_.size()) layers_.push_back(Empty());
        ForEachByte(layers_[layer], glyph, place, [](uint8_t& byte, uint8_t ink) { byte |= ink; });
        return true;
    }
    LineImage Take() { return std::move(layers_); }

private:
    GlyphImage Empty() const {
        const auto width = static_cast<int32_t>(box_.right - box_.left);
        const auto rows = static_cast<int32_t>(box_.bottom - box_.top);
        return {static_cast<int32_t>(box_.left), static_cast<int32_t>(-box_.top), width, rows,
                std::vector<uint8_t>(static_cast<size_t>(width) * static_cast<size_t>(rows))};
    }

    /// Calls `visit(byte of the layer, byte of the glyph)` for all of the glyph.
    template <class Layer, class Visit>
    void ForEachByte(Layer& layer, const GlyphImage& glyph, const Place& place, Visit visit) const {
        const uint8_t* ink = glyph.coverage.data();
        for (int64_t y = place.top; y < place.bottom; ++y) {
            auto* byte =
                layer.coverage.data() + (y - box_.top) * layer.width + (place.left - box_.left);
            for (int64_t x = place.left; x < place.right; ++x) visit(*byte++, *ink++);
        }
    }
    bool Meets(const GlyphImage& layer, const GlyphImage& glyph, const Place& place) const {
        bool meets = false;
        ForEachByte(layer, glyph, place,
                    [&](uint8_t byte, uint8_t ink) { meets |= byte != 0 && ink != 0; });
        return meets;
    }

    static constexpr size_t kMost = 4;

    const Place box_;
    LineImage layers_;
};

/// False, with an empty image, for a text that is too large.
bool Draw(const Inked& inked, LineImage* image) {
    Place box{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN};
    const auto widen = [&box](const GlyphImage&, const Place& place) {
        box = {std::min(box.left, place.left), std::min(box.top, place.top),
               std::max(box.right, place.right), std::max(box.bottom, place.bottom)};
    };
    if (!inked.ForEach(widen)) return false;
    const int64_t width = box.right - box.left, rows = box.bottom - box.top;
    if (width <= 0) return true;
    constexpr int64_t kLargest = LineImages::kLargestLine;
    const bool near = box.left >= -kLargest && box.right <= kLargest && box.top >= -kLargest &&
                      box.bottom <= kLargest;
    if (!near || width * rows > kLargest) return false;
    Layers layers(box);
    bool few = true;
    inked.ForEach([&](const GlyphImage& glyph, const Place& place) {
        few = few && layers.Add(glyph, place);
    });
    if (few) *image = layers.Take();
    return few;
}

size_t CostOf(const ShapedText& shaped, const LineImage& image) {
    size_t bytes = sizeof image + sizeof shaped + shaped.glyphs.size() * sizeof(ShapedGlyph);
    for (const GlyphImage& layer : image) bytes += sizeof layer + layer.coverage.size();
    return bytes;
}

}  // namespace

const LineImage* LineImages::Find(const ShapedTextRef& shaped, const RealizedFont& font,
                                  GlyphCache& glyphs) {
    const Entry* entry = images_.Find(shaped.get());
    if (!entry) {
        Entry fresh{shaped, {}, false};
        fresh.usable = Draw(Inked(glyphs, font, *shaped), &fresh.image);
        const size_t cost = CostOf(*shaped, fresh.image);
        entry = images_.Insert(shaped.get(), std::move(fresh), cost);
    }
    return entry->usable ? &entry->image : nullptr;
}

}  // namespace vxgui::gdi
