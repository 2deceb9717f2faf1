#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <tuple>

#include "generated/Places.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/skin/Skin.h"

/// That no factor shows a seam: for the margins and tiles of every sample skin, each pixel of a
/// target is written exactly once, and what is translucent shows no joints. Sizes go from the sum
/// of the margins to three times the frame; with VXGUI_LONG_RUNS=1 all of them are tried.
namespace vxgui {
namespace {

constexpr double kFactors[] = {1, 1.25, 1.5, 2, 3};
const char* const kSkins[] = {
    VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme",
    VXGUI_SOURCE_DIR "/skins/porcelain/porcelain.uis",
#ifdef VXGUI_STYLES_FOLDER
    "res:DefaultStyles:blue",
    "res:DefaultStyles:homestead",
    "res:DefaultStyles:metallic",
#endif
};

bool AllSizes() { return std::getenv("VXGUI_LONG_RUNS") != nullptr; }

// What decides where pieces go.
using Shape = std::tuple<int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, uint32_t>;

Shape ShapeOf(ThemeItem& item) {
    return {item.ImageWidth(),       item.ImageHeight(),      item.ImageMarginLeft(),
            item.ImageMarginTop(),   item.ImageMarginRight(), item.ImageMarginBottom(),
            item.ImageFlags() & 0xFF};
}

/// An item of each shape that the sample skins have, with their names.
std::vector<SkinItem> SampleItems() {
    std::vector<SkinItem> items;
    std::set<Shape> shapes;
    for (const char* path : kSkins) {
        for (SkinItem& item : LoadSkin(path).items) {
            if (!item.item->Image() || !shapes.insert(ShapeOf(*item.item)).second) continue;
            item.name = String(path) + " " + item.name;
            items.push_back(item);
        }
    }
    return items;
}

std::vector<int32_t> SizesFrom(int32_t least, int32_t most) {
    std::vector<int32_t> sizes;
    for (int32_t size = std::max(least, 1); size <= most; ++size) sizes.push_back(size);
    return sizes;
}

std::vector<int32_t> WidthsOf(ThemeItem& item) {
    return SizesFrom(item.ImageMarginLeft() + item.ImageMarginRight(), 3 * item.ImageWidth());
}

std::vector<int32_t> HeightsOf(ThemeItem& item) {
    return SizesFrom(item.ImageMarginTop() + item.ImageMarginBottom(), 3 * item.ImageHeight());
}

// The ends, the frame itself, and with all sizes its neighbours and one between.
std::vector<int32_t> Some(const std::vector<int32_t>& sizes, int32_t frame) {
    std::set<int32_t> some{sizes.front(), frame, sizes.back()};
    if (AllSizes()) some.insert({frame - 1, frame + 1, 2 * frame + 1});
    std::erase_if(some, [&](int32_t size) { return size < sizes.front() || size > sizes.back(); });
    return {some.begin(), some.end()};
}

/// Calls `check(width, height)`: with each width and some heights, and the other way round.
template <class Check>
void ForEachSize(ThemeItem& item, Check check) {
    constexpr size_t kSizesOfMany = 10;
    const auto widths = WidthsOf(item), heights = HeightsOf(item);
    const auto step = [](const auto& sizes) {
        return AllSizes() ? 1 : sizes.size() / kSizesOfMany + 1;
    };
    for (size_t i = 0; i < widths.size(); i += step(widths))
        for (const int32_t height : Some(heights, item.ImageHeight())) check(widths[i], height);
    for (size_t i = 0; i < heights.size(); i += step(heights))
        for (const int32_t width : Some(widths, item.ImageWidth())) check(width, heights[i]);
}

template <class Check>
void ForEachPairOfSizes(ThemeItem& item, Check check) {
    if (!AllSizes()) return ForEachSize(item, check);
    const auto heights = HeightsOf(item);
    for (const int32_t width : WidthsOf(item))
        for (const int32_t height : heights) check(width, height);
}

// Pixels written exactly once.

/// A surface that remembers where its pieces went.
class PieceSurface : public cAlphaDIBSection {
public:
    PieceSurface(const cAlphaDIBSection& like) { Create(like.Width(), like.Height()); }

    std::vector<gdi::RECT> pieces;

    void PaintPicture(gdi::HDC, int32_t x, int32_t y, int32_t w, int32_t h, int32_t, int32_t,
                      int32_t, int32_t, uint32_t) override {
        pieces.push_back({x, y, x + w, y + h});
    }
    void TransPaintPicture(gdi::HDC, int32_t x, int32_t y, int32_t w, int32_t h, int32_t, int32_t,
                           int32_t, int32_t, int32_t) override {
        pieces.push_back({x, y, x + w, y + h});
    }
    void AlphaPaintPicture(gdi::HDC, int32_t x, int32_t y, int32_t w, int32_t h, int32_t, int32_t,
                           int32_t, int32_t, uint8_t, bool) override {
        pieces.push_back({x, y, x + w, y + h});
    }
};

/// Counts over the cells between all edges of a list of rectangles, which stands for counting over
/// their pixels.
class CoverCount {
public:
    /// How often the pixel that is written least, and the one that is written most, of a
    /// rectangle at the origin; -1 when something is written beside it.
    std::pair<int32_t, int32_t> Of(const std::vector<gdi::RECT>& pieces, int32_t w, int32_t h) {
        xs_.assign({0, w});
        ys_.assign({0, h});
        for (const gdi::RECT& piece : pieces) {
            if (piece.left < 0 || piece.top < 0 || piece.right > w || piece.bottom > h)
                return {-1, -1};
            xs_.insert(xs_.end(), {piece.left, piece.right});
            ys_.insert(ys_.end(), {piece.top, piece.bottom});
        }
        Tidy(xs_);
        Tidy(ys_);
        counts_.assign((xs_.size() - 1) * (ys_.size() - 1), 0);
        for (const gdi::RECT& piece : pieces) Add(piece);
        const auto [least, most] = std::ranges::minmax(counts_);
        return {least, most};
    }

private:
    static void Tidy(std::vector<int32_t>& edges) {
        std::ranges::sort(edges);
        edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    }
    static size_t PlaceOf(const std::vector<int32_t>& edges, int32_t edge) {
        return static_cast<size_t>(std::ranges::lower_bound(edges, edge) - edges.begin());
    }
    void Add(const gdi::RECT& piece) {
        const size_t right = PlaceOf(xs_, piece.right), bottom = PlaceOf(ys_, piece.bottom);
        for (size_t y = PlaceOf(ys_, piece.top); y < bottom; ++y)
            for (size_t x = PlaceOf(xs_, piece.left); x < right; ++x)
                ++counts_[y * (xs_.size() - 1) + x];
    }

    std::vector<int32_t> xs_, ys_, counts_;
};

TEST(CoverCount, TellsGapsOverlapsAndWhatStandsBeside) {
    CoverCount count;
    const gdi::RECT left{0, 0, 4, 6}, right{4, 0, 10, 6}, wide{3, 0, 10, 6};
    using Pair = std::pair<int32_t, int32_t>;
    EXPECT_EQ(count.Of({left, right}, 10, 6), Pair(1, 1));
    EXPECT_EQ(count.Of({left, wide}, 10, 6), Pair(1, 2));
    EXPECT_EQ(count.Of({left}, 10, 6), Pair(0, 1));
    EXPECT_EQ(count.Of({left, right}, 9, 6), Pair(-1, -1));
    EXPECT_EQ(count.Of({}, 9, 6), Pair(0, 0));
}

TEST(ScaledSeams, EachPixelIsWrittenExactlyOnce) {
    CoverCount count;
    int64_t drawings = 0, pieces = 0;
    const std::vector<SkinItem> items = SampleItems();
    for (const SkinItem& sample : items) {
        for (const double factor : kFactors) {
            const Ref<ThemeItem> item = sample.item->Scaled(factor);
            const Ref<PieceSurface> surface = New<PieceSurface>(*item->Image());
            item->Image(surface);
            ForEachPairOfSizes(*item, [&](int32_t width, int32_t height) {
                surface->pieces.clear();
                item->DrawBackground(nullptr, 0, 0, width, height, 0, 255);
                const auto [least, most] = count.Of(surface->pieces, width, height);
                if (least != 1 || most != 1)
                    ADD_FAILURE() << sample.name.Utf8() << " at " << factor << ", " << width << "x"
                                  << height << ": written " << least << " to " << most << " times";
                ++drawings;
                pieces += static_cast<int64_t>(surface->pieces.size());
            });
            if (HasFailure()) return;
        }
    }
    std::printf("%zu shapes, %lld drawings, %lld pieces\n", items.size(),
                static_cast<long long>(drawings), static_cast<long long>(pieces));
    EXPECT_GE(items.size(), 30u);
}

// Joints.

/// A host's picture with room for every size of an item.
class Ground {
public:
    Ground(int32_t width, int32_t height)
        : width_(width),
          height_(height),
          pixels_(static_cast<size_t>(width) * static_cast<size_t>(height)),
          dc_(gdi::CreateHostDC(
              {pixels_.data(), width, height, std::ptrdiff_t{width} * 4, false})) {}
    ~Ground() { gdi::DeleteDC(dc_); }
    Ground(const Ground&) = delete;
    Ground& operator=(const Ground&) = delete;

    gdi::HDC dc() const { return dc_; }
    void Fill(int32_t w, int32_t h) {
        for (int32_t y = 0; y < h; ++y) std::fill_n(Row(y), w, kColour);
    }
    /// Whether everything from the top left corner to there is of one colour, not the ground's.
    bool IsPlain(int32_t w, int32_t h) const {
        const uint32_t first = pixels_[0] & 0xFFFFFF;
        for (int32_t y = 0; y < h; ++y) {
            const uint32_t* row = pixels_.data() + static_cast<size_t>(y) * size_t(width_);
            for (int32_t x = 0; x < w; ++x)
                if ((row[x] & 0xFFFFFF) != first) return false;
        }
        return first != (kColour & 0xFFFFFF);
    }

private:
    static constexpr uint32_t kColour = 0xFF2A6FB5;
    uint32_t* Row(int32_t y) { return pixels_.data() + static_cast<size_t>(y) * size_t(width_); }

    int32_t width_, height_;
    std::vector<uint32_t> pixels_;
    gdi::HDC dc_;
};

// The item with a strip of one colour in place of its own.
Ref<ThemeItem> Plain(const ThemeItem& item, ARGB colour, int32_t transMode, uint8_t alpha) {
    const Ref<ThemeItem> plain = item.Scaled(1);
    const Ref<cAlphaDIBSection> strip = New<cAlphaDIBSection>();
    strip->Create(item.Image()->Width(), item.Image()->Height());
    std::ranges::fill(strip->Pixels(), colour);
    plain->Image(strip);
    plain->TransMode(transMode);
    plain->ImageAlpha(alpha);
    return plain;
}

constexpr int32_t kQuickArea = 25000;

void ExpectNoJoints(const SkinItem& sample, const Ref<ThemeItem>& plain, double factor,
                    int64_t& drawings) {
    const Ref<ThemeItem> item = plain->Scaled(factor);
    Ground ground(WidthsOf(*item).back(), HeightsOf(*item).back());
    ForEachSize(*item, [&](int32_t width, int32_t height) {
        if (!AllSizes() && width * height > kQuickArea) return;
        ground.Fill(width, height);
        item->DrawBackground(ground.dc(), 0, 0, width, height, 0, 255);
        if (!ground.IsPlain(width, height))
            ADD_FAILURE() << sample.name.Utf8() << " at " << factor << ", " << width << "x"
                          << height;
        ++drawings;
    });
}

void ExpectNoJointsAnywhere(ARGB colour, int32_t transMode, uint8_t alpha) {
    int64_t drawings = 0;
    for (const SkinItem& sample : SampleItems()) {
        for (const double factor : kFactors) {
            ExpectNoJoints(sample, Plain(*sample.item, colour, transMode, alpha), factor, drawings);
            if (testing::Test::HasFailure()) return;
        }
    }
    std::printf("%lld drawings\n", static_cast<long long>(drawings));
}

TEST(ScaledSeams, AConstantAlphaShowsNoJoints) {
    ExpectNoJointsAnywhere({210, 180, 90, 255}, Normal, 128);
}

TEST(ScaledSeams, TranslucentPixelsShowNoJoints) {
    ExpectNoJointsAnywhere({40, 110, 230, 101}, PerPixel, 255);
}

}  // namespace
}  // namespace vxgui
