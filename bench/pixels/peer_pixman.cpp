#include <pixman.h>

#include "bench/pixels/Works.h"

namespace vxgui::bench {
namespace {

using Image = std::shared_ptr<pixman_image_t>;

Image ImageOver(const std::shared_ptr<Pixels>& pixels, pixman_format_code_t format) {
    return {pixman_image_create_bits(format, pixels->width, pixels->height, pixels->words.data(),
                                     pixels->Stride()),
            [pixels](pixman_image_t* image) { pixman_image_unref(image); }};
}

Image ConstantMask(int alpha) {
    const pixman_color_t color{0, 0, 0, static_cast<uint16_t>(alpha * 257)};
    return {pixman_image_create_solid_fill(&color), pixman_image_unref};
}

auto Composes(pixman_op_t op, pixman_format_code_t format, bool runs, int alpha) {
    return [=](int side) {
        return [=] {
            std::vector<uint32_t> words = StraightPicture(side, side, runs);
            if (format == PIXMAN_a8r8g8b8) words = Premultiplied(words);
            const Image mask = alpha < 255 ? ConstantMask(alpha) : nullptr;
            return [=, from = ImageOver(Square(side, words), format),
                    to = ImageOver(Target(side), format)] {
                pixman_image_composite32(op, from.get(), mask.get(), to.get(), 0, 0, 0, 0, 0, 0,
                                         side, side);
            };
        };
    };
}

auto Stretches(int side) {
    return [=] {
        const int width = Stretched(side);
        const Image from =
            ImageOver(Square(side, StraightPicture(side, side, false)), PIXMAN_x8r8g8b8);
        pixman_transform_t transform;
        const pixman_fixed_t scale = pixman_double_to_fixed(static_cast<double>(side) / width);
        pixman_transform_init_scale(&transform, scale, scale);
        pixman_image_set_transform(from.get(), &transform);
        pixman_image_set_filter(from.get(), PIXMAN_FILTER_NEAREST, nullptr, 0);
        return [=, to = ImageOver(Target(width), PIXMAN_x8r8g8b8)] {
            pixman_image_composite32(PIXMAN_OP_SRC, from.get(), nullptr, to.get(), 0, 0, 0, 0, 0, 0,
                                     width, width);
        };
    };
}

const bool kAdded = [] {
    AddSides("over", "pixman", Composes(PIXMAN_OP_OVER, PIXMAN_a8r8g8b8, false, 255));
    AddSides("over-runs", "pixman", Composes(PIXMAN_OP_OVER, PIXMAN_a8r8g8b8, true, 255));
    AddSides("over-constant", "pixman",
             Composes(PIXMAN_OP_OVER, PIXMAN_a8r8g8b8, false, kOverConstant));
    AddSides("constant", "pixman", Composes(PIXMAN_OP_OVER, PIXMAN_x8r8g8b8, false, kConstant));
    AddSides("copy", "pixman", Composes(PIXMAN_OP_SRC, PIXMAN_x8r8g8b8, false, 255));
    AddSides("stretch", "pixman", Stretches);
    Beside("create", "64", "pixman", [] {
        return [] {
            pixman_image_t* const image =
                pixman_image_create_bits(PIXMAN_a8r8g8b8, 64, 64, nullptr, 0);
            benchmark::DoNotOptimize(pixman_image_get_data(image));
            pixman_image_unref(image);
        };
    });
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
