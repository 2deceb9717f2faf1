#include <pixman.h>

#include "bench/Beside.h"
#include "bench/Roof.h"
#include "bench/objects/Pictures.h"

namespace vxgui::bench {
namespace {

using namespace gdiplus;

constexpr int kSide = 512;

// A rectangle whose edges lie on pixels, in one colour, on a picture of 512 x 512.
auto Ours(int size, ARGB color) {
    return [=] {
        auto canvas = std::make_shared<OurCanvas>(kSide, kSide);
        const auto brush = OurBrush(color);
        return [=] { GdipFillRectangleI(canvas->graphics, brush.get(), 5, 6, size, size); };
    };
}

auto Cairos(int size, ARGB color) {
    return [=] {
        auto canvas = std::make_shared<CairoCanvas>(kSide, kSide);
        return [=] {
            SetCairoColor(canvas->cairo, color);
            cairo_rectangle(canvas->cairo, 5, 6, size, size);
            cairo_fill(canvas->cairo);
        };
    };
}

auto Pixmans(int size, ARGB color) {
    return [=] {
        auto pixels = std::make_shared<Pixels>(kSide, kSide, 0xFFC0D0E0);
        const std::shared_ptr<pixman_image_t> image(
            pixman_image_create_bits(PIXMAN_a8r8g8b8, kSide, kSide, pixels->words.data(),
                                     pixels->Stride()),
            pixman_image_unref);
        const auto channel = [=](int shift) {
            return static_cast<uint16_t>((color >> shift & 255) * (color >> 24) / 255 * 0x101);
        };
        const pixman_color_t word{channel(16), channel(8), channel(0),
                                  static_cast<uint16_t>((color >> 24) * 0x101)};
        return [=] {
            const pixman_box32_t box{5, 6, 5 + size, 6 + size};
            pixman_image_fill_boxes(PIXMAN_OP_OVER, image.get(), &word, 1, &box);
            benchmark::DoNotOptimize(pixels->words.data());
        };
    };
}

auto Roof(int size, ARGB color) {
    return [=] {
        auto pixels = std::make_shared<Pixels>(kSide, kSide);
        return [=] {
            const auto count = static_cast<size_t>(size);
            for (int y = 0; y < size; ++y) {
                uint32_t* const row = &pixels->words[static_cast<size_t>(y * kSide + 5)];
                color >> 24 == 255 ? StreamFill(row, count, color) : StreamMix(row, row, count);
            }
        };
    };
}

void Add(const std::string& work, ARGB color) {
    for (const int size : {10, 100, 500}) {
        const std::string name = std::to_string(size);
        Beside(work, name, "ours", Ours(size, color));
        Beside(work, name, "cairo", Cairos(size, color));
        Beside(work, name, "pixman", Pixmans(size, color));
        Beside(work, name, "roof", Roof(size, color));
    }
}

const bool kAdded = (Add("fill", 0xFF336699), Add("fill-alpha", 0x80336699), true);

}  // namespace
}  // namespace vxgui::bench
