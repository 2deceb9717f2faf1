#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb_image.h>
#pragma GCC diagnostic pop

#include "bench/Beside.h"
#include "bench/image/TgaFile.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

auto Stbs(bool packed) {
    return [=] {
        return [file = TgaFile(kSide, packed)] {
            int width, height, channels;
            stbi_image_free(stbi_load_from_memory(file.data(), static_cast<int>(file.size()),
                                                  &width, &height, &channels, 4));
        };
    };
}

const bool kAdded = [] {
    Beside("tga", "512", "stb", Stbs(false));
    Beside("tga-packed", "512", "stb", Stbs(true));
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
