#include <SDL.h>

#include "bench/pixels/Works.h"

namespace vxgui::bench {
namespace {

using Surface = std::shared_ptr<SDL_Surface>;

Surface SurfaceOf(const std::shared_ptr<Pixels>& pixels, uint32_t format) {
    return {SDL_CreateRGBSurfaceWithFormatFrom(pixels->Bytes(), pixels->width, pixels->height, 32,
                                               pixels->Stride(), format),
            [pixels](SDL_Surface* surface) { SDL_FreeSurface(surface); }};
}

auto Blits(const Surface& source, int side) {
    return [=, target = SurfaceOf(Target(side), SDL_PIXELFORMAT_RGB888)] {
        SDL_UpperBlit(source.get(), nullptr, target.get(), nullptr);
    };
}

// Straight pixels, which it encodes into runs at the first blit.
auto Blends(bool runs) {
    return [=](int side) {
        return [=] {
            const Surface source = SurfaceOf(Square(side, StraightPicture(side, side, runs)),
                                             SDL_PIXELFORMAT_ARGB8888);
            SDL_SetSurfaceBlendMode(source.get(), SDL_BLENDMODE_BLEND);
            SDL_SetSurfaceRLE(source.get(), runs);
            return Blits(source, side);
        };
    };
}

auto Merges(Keys keys) {
    return [=](int side) {
        return [=] {
            const Surface source =
                SurfaceOf(Square(side, KeyedPicture(side, keys)), SDL_PIXELFORMAT_RGB888);
            SDL_SetColorKey(source.get(), SDL_TRUE, kMagenta);
            SDL_SetSurfaceRLE(source.get(), 1);
            return Blits(source, side);
        };
    };
}

auto Copies(int side) {
    return [=] {
        return Blits(
            SurfaceOf(Square(side, StraightPicture(side, side, false)), SDL_PIXELFORMAT_RGB888),
            side);
    };
}

const bool kAdded = [] {
    AddSides("over", "sdl", Blends(false));
    AddSides("over-runs", "sdl", Blends(true));
    for (const auto& [keys, work] : kKeyWorks) AddSides(work, "sdl", Merges(keys));
    AddSides("copy", "sdl", Copies);
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
