#include <pixman.h>

#include "bench/Beside.h"
#include "bench/Roof.h"
#include "bench/objects/Pictures.h"
#include "vxgui/platform/gdiplus/words/Premultiply.h"

namespace vxgui::bench {
namespace {

using namespace gdiplus;

constexpr int kTarget = 600;

std::vector<uint32_t> Premultiplied(std::vector<uint32_t> words) {
    PremultiplyRow(words);
    return words;
}

// A whole picture at its own size, on premultiplied pixels.
auto Ours(int size, bool straight, bool runs) {
    return [=] {
        auto target = std::make_shared<OurCanvas>(kTarget, kTarget);
        auto source = std::make_shared<OurCanvas>(
            size, size, straight ? PixelFormat32bppARGB : PixelFormat32bppPARGB);
        source->pixels.Set(StraightPicture(size, size, runs));
        if (!straight) PremultiplyRow(source->pixels.words);
        return [=] { GdipDrawImageRectI(target->graphics, source->image, 7, 9, size, size); };
    };
}

// With `eachTime`, what is given is a straight picture, which has to be multiplied first. The loop
// that does it is our own: the best that a caller of cairo could have.
auto Cairos(int size, bool eachTime, bool runs) {
    return [=] {
        auto target = std::make_shared<CairoCanvas>(kTarget, kTarget);
        auto source = std::make_shared<CairoCanvas>(size, size);
        const std::vector<uint32_t> straight = StraightPicture(size, size, runs);
        source->pixels.Set(Premultiplied(straight));
        return [=] {
            if (eachTime) {
                cairo_surface_flush(source->surface);
                source->pixels.Set(straight);
                PremultiplyRow(source->pixels.words);
                cairo_surface_mark_dirty(source->surface);
            }
            cairo_set_source_surface(target->cairo, source->surface, 7, 9);
            cairo_paint(target->cairo);
        };
    };
}

auto Pixmans(int size, bool runs) {
    return [=] {
        auto target = std::make_shared<Pixels>(kTarget, kTarget, 0xFFC0D0E0);
        auto source = std::make_shared<Pixels>(size, size);
        source->Set(Premultiplied(StraightPicture(size, size, runs)));
        const auto image = [](Pixels& pixels) {
            return std::shared_ptr<pixman_image_t>(
                pixman_image_create_bits(PIXMAN_a8r8g8b8, pixels.width, pixels.height,
                                         pixels.words.data(), pixels.Stride()),
                pixman_image_unref);
        };
        return [=, to = image(*target), from = image(*source)] {
            pixman_image_composite32(PIXMAN_OP_OVER, from.get(), nullptr, to.get(), 0, 0, 0, 0, 7,
                                     9, size, size);
            benchmark::DoNotOptimize(target->words.data());
            benchmark::DoNotOptimize(source->words.data());
        };
    };
}

auto Roof(int size) {
    return [=] {
        auto target = std::make_shared<Pixels>(kTarget, kTarget);
        auto source = std::make_shared<Pixels>(size, size);
        return [=] {
            const auto width = static_cast<size_t>(size);
            for (size_t y = 0; y < width; ++y) {
                StreamMix(&target->words[(y + 9) * kTarget + 7], &source->words[y * width], width);
            }
        };
    };
}

void Add(const std::string& work, bool straight, bool runs) {
    for (const int size : {32, 128, 512}) {
        const std::string name = std::to_string(size);
        Beside(work, name, "ours", Ours(size, straight, runs));
        Beside(work, name, "cairo", Cairos(size, straight, runs));
        if (straight) Beside(work, name, "cairo-premultiplied", Cairos(size, false, runs));
        Beside(work, name, straight ? "pixman-premultiplied" : "pixman", Pixmans(size, runs));
        Beside(work, name, "roof", Roof(size));
    }
}

const bool kAdded = [] {
    Add("blit-premultiplied", false, false);
    Add("blit-straight", true, false);
    Add("blit-straight-runs", true, true);
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
