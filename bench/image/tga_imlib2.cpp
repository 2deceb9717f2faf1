#include <Imlib2.h>

#include "bench/Beside.h"
#include "bench/image/TgaFile.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

auto Imlib2s(bool packed) {
    return [=] {
        imlib_set_cache_size(0);
        return [file = TgaFile(kSide, packed)] {
            const Imlib_Image image = imlib_load_image_mem("picture.tga", file.data(), file.size());
            if (!image) return;
            imlib_context_set_image(image);
            benchmark::DoNotOptimize(imlib_image_get_data_for_reading_only());
            imlib_free_image();
        };
    };
}

const bool kAdded = [] {
    Beside("tga", "512", "imlib2", Imlib2s(false));
    Beside("tga-packed", "512", "imlib2", Imlib2s(true));
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
