#include "vxgui/platform/gdiplus/words/WordBlends.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "vxgui/platform/gdiplus/words/Premultiply.h"

namespace vxgui::gdiplus {
namespace {

// A row of words on which cairo draws what the runs are compared with.
class CairoRow {
public:
    explicit CairoRow(std::vector<ARGB> pixels) : words(std::move(pixels)) {
        surface_.reset(Cover(words, CAIRO_FORMAT_ARGB32, 4));
        cairo_.reset(cairo_create(surface_.get()));
    }

    void Fill(ARGB straight, cairo_operator_t how) {
        Color(straight);
        cairo_set_operator(cairo_.get(), how);
        cairo_rectangle(cairo_.get(), 0, 0, static_cast<double>(words.size()), 1);
        cairo_fill(cairo_.get());
        cairo_surface_flush(surface_.get());
    }
    void Draw(std::vector<ARGB> from) {
        const std::unique_ptr<cairo_surface_t, End> source(Cover(from, CAIRO_FORMAT_ARGB32, 4));
        cairo_set_source_surface(cairo_.get(), source.get(), 0, 0);
        cairo_paint(cairo_.get());
        cairo_surface_flush(surface_.get());
    }
    void Mask(ARGB straight, std::vector<uint8_t> coverage) {
        const std::unique_ptr<cairo_surface_t, End> mask(Cover(coverage, CAIRO_FORMAT_A8, 1));
        Color(straight);
        cairo_mask_surface(cairo_.get(), mask.get(), 0, 0);
        cairo_surface_flush(surface_.get());
    }

    std::vector<ARGB> words;

private:
    struct End {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
    };

    template <class T>
    static cairo_surface_t* Cover(std::vector<T>& row, cairo_format_t format, int bytes) {
        const auto width = static_cast<int>(row.size());
        return cairo_image_surface_create_for_data(reinterpret_cast<uint8_t*>(row.data()), format,
                                                   width, 1, width * bytes);
    }
    void Color(ARGB straight) {
        const auto part = [straight](int shift) { return (straight >> shift & 255) / 255.0; };
        cairo_set_source_rgba(cairo_.get(), part(16), part(8), part(0), part(24));
    }

    std::unique_ptr<cairo_surface_t, End> surface_;
    std::unique_ptr<cairo_t, End> cairo_;
};

std::vector<ARGB> AnyWords(size_t count, uint32_t seed) {
    std::mt19937 random(seed);
    std::vector<ARGB> words(count);
    for (ARGB& word : words) word = random();
    return words;
}

// Every byte, in all four places.
std::vector<ARGB> EveryByte() {
    std::vector<ARGB> words;
    for (ARGB byte = 0; byte < 256; ++byte) words.push_back(byte * 0x01010101u);
    return words;
}

ARGB StraightColor(ARGB alpha, ARGB blue) {
    return alpha << 24 | ((blue + 85) & 255) << 16 | ((blue + 170) & 255) << 8 | blue;
}

TEST(WordBlends, MakeTheLibrarysWordOfEveryColor) {
    CairoRow row({0});
    for (ARGB alpha = 0; alpha < 256; ++alpha) {
        for (ARGB blue = 0; blue < 256; ++blue) {
            const ARGB color = StraightColor(alpha, blue);
            row.Fill(color, CAIRO_OPERATOR_SOURCE);
            ASSERT_EQ(WordOf(color), row.words[0]) << std::hex << color;
        }
    }
}

TEST(WordBlends, DrawEveryColorOverEveryByteAsTheLibraryDoes) {
    CairoRow row(EveryByte());
    for (ARGB alpha = 0; alpha < 256; ++alpha) {
        for (ARGB blue = 0; blue < 86; ++blue) {
            const ARGB color = StraightColor(alpha, blue);
            std::ranges::copy(EveryByte(), row.words.begin());
            row.Fill(color, CAIRO_OPERATOR_OVER);
            std::vector<ARGB> ours = EveryByte();
            DrawColor(ours.data(), ours.size(), WordOf(color));
            ASSERT_EQ(ours, row.words) << std::hex << color;
        }
    }
}

// Colours above their alpha too, which a caller's memory may hold.
TEST(WordBlends, DrawAnyWordsOverAnyAsTheLibraryDoes) {
    for (uint32_t seed = 0; seed < 20; seed += 2) {
        const std::vector<ARGB> from = AnyWords(30000, seed);
        CairoRow row(AnyWords(from.size(), seed + 1));
        std::vector<ARGB> ours = row.words;
        row.Draw(from);
        DrawWords(ours.data(), from.data(), ours.size());
        EXPECT_EQ(ours, row.words) << seed;
    }
}

TEST(WordBlends, MultiplyStraightWordsBeforeTheyAreDrawn) {
    const std::vector<ARGB> from = AnyWords(300000, 3);
    std::vector<ARGB> ours = AnyWords(from.size(), 4), expected = ours, multiplied = from;
    std::ranges::transform(from, multiplied.begin(), Premultiplied);
    DrawWords(expected.data(), multiplied.data(), expected.size());
    DrawStraight(ours.data(), from.data(), ours.size());
    EXPECT_EQ(ours, expected);
}

// Icons have runs of clear and of opaque pixels, which end anywhere.
TEST(WordBlends, DrawRunsOfClearAndOpaqueWordsLikeAnyOthers) {
    for (const size_t length : {1, 15, 63, 64, 65, 200}) {
        std::vector<ARGB> from = AnyWords(3000, 6);
        for (size_t i = 0; i < from.size(); ++i) {
            if (i / length % 3 == 0) from[i] &= 0x00FFFFFF;
            if (i / length % 3 == 1) from[i] |= 0xFF000000;
        }
        std::vector<ARGB> ours = AnyWords(from.size(), 7), expected = ours, multiplied = from;
        std::ranges::transform(from, multiplied.begin(), Premultiplied);
        DrawWords(expected.data(), multiplied.data(), expected.size());
        DrawStraight(ours.data(), from.data(), ours.size());
        EXPECT_EQ(ours, expected) << length;
    }
}

TEST(WordBlends, DrawAColorThroughEveryCoverageAsTheLibraryDoes) {
    std::vector<uint8_t> coverage(256 * 64);
    for (size_t i = 0; i < coverage.size(); ++i) coverage[i] = static_cast<uint8_t>(i);
    for (const ARGB color : {0xFF102030u, 0x80FF40C0u, 0x01FFFFFFu, 0xFEFFFFFFu, 0x00123456u}) {
        CairoRow row(AnyWords(coverage.size(), color));
        std::vector<ARGB> ours = row.words;
        row.Mask(color, coverage);
        DrawCovered(ours.data(), coverage.data(), ours.size(), WordOf(color));
        EXPECT_EQ(ours, row.words) << std::hex << color;
    }
}

TEST(WordBlends, LeaveTheWordsBesideTheirRunAlone) {
    const std::vector<ARGB> from = AnyWords(90, 5);
    const std::vector<uint8_t> coverage(90, 77);
    for (size_t count = 0; count < 80; ++count) {
        std::vector<ARGB> row(90, 0x11223344);
        FillWords(&row[3], count, 0x55);
        DrawColor(&row[3], count, 0x80332211);
        DrawWords(&row[3], &from[1], count);
        DrawStraight(&row[3], &from[2], count);
        DrawCovered(&row[3], &coverage[1], count, 0x80332211);
        const auto untouched = std::ranges::count(row, 0x11223344u);
        EXPECT_EQ(untouched, static_cast<ptrdiff_t>(90 - count)) << count;
    }
}

}  // namespace
}  // namespace vxgui::gdiplus
