#include "tools/view/ItemFacts.h"

#include <algorithm>
#include <map>

namespace vxgui::view {
namespace {

std::string Text(int32_t number) { return std::to_string(number); }

std::string Sides(int32_t left, int32_t top, int32_t right, int32_t bottom) {
    return Text(left) + ", " + Text(top) + ", " + Text(right) + ", " + Text(bottom);
}

std::string SizeText(int32_t width, int32_t height) {
    return Text(width) + " \u00D7 " + Text(height);
}

std::string TransparencyOf(int32_t mode) {
    return mode == PerPixel ? "alpha channel" : mode == Trans ? "key colour" : "none";
}

std::string FrameText(int32_t frame, int32_t frames) {
    if (frame < 0 || frame >= frames) return "none in this state";
    return Text(frame) + " of 0 to " + Text(frames - 1);
}

std::string TilingOf(const ThemeItem& item) {
    constexpr const char* kCentres[] = {"stretched", "tiled", "tiled across, stretched down",
                                        "stretched across, tiled down", "copied once"};
    const int32_t tile = item.Tile();
    std::string text = tile >= 0 && tile <= CopyXYFillRest ? kCentres[tile] : Text(tile);
    std::string edges;
    const auto add = [&](int32_t set, const char* name) {
        if (set) edges += (edges.empty() ? "" : ", ") + std::string(name);
    };
    add(item.TileLeft(), "left");
    add(item.TileTop(), "top");
    add(item.TileRight(), "right");
    add(item.TileBottom(), "bottom");
    return edges.empty() ? text : text + "; tiled " + edges;
}

void AddImage(std::vector<Fact>& facts, const ThemeItem& item, int32_t state) {
    const int32_t frames = std::max(item.FrameCount(), 1);
    facts.push_back({"Frame", FrameText(item.StateFrame(state), frames)});
    facts.push_back({"Frame size", SizeText(item.ImageWidth(), item.ImageHeight())});
    facts.push_back({"Transparency", TransparencyOf(item.TransMode())});
    if (item.ImageAlpha() < 255) facts.push_back({"Opacity", Text(item.ImageAlpha()) + " of 255"});
    facts.push_back({"Margins", Sides(item.ImageMarginLeft(), item.ImageMarginTop(),
                                      item.ImageMarginRight(), item.ImageMarginBottom())});
    facts.push_back({"Centre", TilingOf(item)});
}

void AddGlyph(std::vector<Fact>& facts, ThemeItem& item, int32_t state) {
    int32_t left, top, right, bottom;
    item.GetGlyphMargin(left, top, right, bottom);
    facts.push_back(
        {"Glyph frame", FrameText(item.GlyphStateFrame(state), std::max(item.GlyphFrames(), 1))});
    facts.push_back({"Glyph margins", Sides(left, top, right, bottom)});
}

/// The pixels whose colours differ in the lowest bits alone.
struct Heap {
    uint64_t count = 0, red = 0, green = 0, blue = 0;

    void Add(uint32_t pixel) {
        ++count;
        red += pixel >> 16 & 255;
        green += pixel >> 8 & 255;
        blue += pixel & 255;
    }
    uint32_t Mean() const {
        const auto mean = [&](uint64_t sum) { return static_cast<uint32_t>(sum / count); };
        return 0xFF000000 | mean(red) << 16 | mean(green) << 8 | mean(blue);
    }
};

constexpr uint32_t kCoarse = 0xE0E0E0;

}  // namespace

std::vector<Fact> FactsOf(const ShownItem& shown) {
    if (!shown.item) return {};
    ThemeItem& item = *shown.item;
    std::vector<Fact> facts;
    if (item.Image()) AddImage(facts, item, shown.state);
    if (item.Glyph()) AddGlyph(facts, item, shown.state);
    int32_t left, top, right, bottom;
    item.GetContentMargin(left, top, right, bottom);
    facts.push_back({"Content", Sides(left, top, right, bottom)});
    return facts;
}

std::vector<uint32_t> MainColours(tool::Sheet& straight, size_t most) {
    std::map<uint32_t, Heap> heaps;
    for (int32_t y = 0; y < straight.height(); ++y) {
        for (int32_t x = 0; x < straight.width(); ++x) {
            const uint32_t pixel = straight.At(x, y);
            if (pixel >> 24) heaps[pixel & kCoarse].Add(pixel);
        }
    }
    std::vector<Heap> order;
    for (const auto& [colour, heap] : heaps) order.push_back(heap);
    std::ranges::stable_sort(order, std::greater<>(), &Heap::count);
    order.resize(std::min(order.size(), most));
    std::vector<uint32_t> colours;
    for (const Heap& heap : order) colours.push_back(heap.Mean());
    return colours;
}

}  // namespace vxgui::view
