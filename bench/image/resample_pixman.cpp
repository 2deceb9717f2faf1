#include <pixman.h>

#include <memory>

#include "bench/Beside.h"
#include "bench/Pixels.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

using Image = std::shared_ptr<pixman_image_t>;

// `bits` may be null for memory of the image's own.
Image ImageOf(int width, int height, uint32_t* bits) {
    return {pixman_image_create_bits(PIXMAN_a8r8g8b8, width, height, bits, width * 4),
            pixman_image_unref};
}

// Two by two pixels for each, as ours.
Image Scaled(Pixels& pixels, int width, int height) {
    Image image = ImageOf(kSide, kSide, pixels.words.data());
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform, pixman_double_to_fixed(double{kSide} / width),
                                pixman_double_to_fixed(double{kSide} / height));
    pixman_image_set_transform(image.get(), &transform);
    pixman_image_set_filter(image.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
    return image;
}

void Scale(const Image& source, const Image& target, int width, int height) {
    pixman_image_composite32(PIXMAN_OP_SRC, source.get(), nullptr, target.get(), 0, 0, 0, 0, 0, 0,
                             width, height);
}

auto Pixmans(int width, int height) {
    return [=] {
        auto from = std::make_shared<Pixels>(kSide, kSide);
        from->Set(StraightPicture(kSide, kSide, false));
        auto to = std::make_shared<Pixels>(width, height);
        const Image source = Scaled(*from, width, height);
        const Image target = ImageOf(width, height, to->words.data());
        return [=] {
            Scale(source, target, width, height);
            benchmark::DoNotOptimize(to->words.data());
            benchmark::DoNotOptimize(from->words.data());
        };
    };
}

auto PixmansNew(int width, int height) {
    return [=] {
        auto from = std::make_shared<Pixels>(kSide, kSide);
        from->Set(StraightPicture(kSide, kSide, false));
        const Image source = Scaled(*from, width, height);
        return [=] {
            Scale(source, ImageOf(width, height, nullptr), width, height);
            benchmark::DoNotOptimize(from->words.data());
        };
    };
}

const bool kAdded = [] {
    for (const auto& [width, height] : {std::pair{1024, 1024}, std::pair{300, 200}}) {
        const std::string name = std::to_string(width) + "x" + std::to_string(height);
        Beside("resample", name, "pixman", Pixmans(width, height));
        Beside("resample-new", name, "pixman", PixmansNew(width, height));
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
