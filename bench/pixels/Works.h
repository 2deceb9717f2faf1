#pragma once

#include <memory>
#include <string>

#include "bench/Beside.h"
#include "bench/Pixels.h"
#include "vxgui/pixels/Premultiply.h"

/// What is measured, so that all who do it do the same: pictures and targets are squares, and the
/// whole picture goes into the whole target.
namespace vxgui::bench {

constexpr int kSides[] = {64, 256, 1024};
constexpr uint32_t kGround = 0xFFC0D0E0;
constexpr uint32_t kMagenta = 0xFF00FF;
/// The constant alphas of `over-constant` and of `constant`.
constexpr int kOverConstant = 128, kConstant = 100;

/// The side of a target into which a picture is stretched.
constexpr int Stretched(int side) { return side * 17 / 10; }

inline std::vector<uint32_t> Premultiplied(std::vector<uint32_t> words) {
    Premultiply({reinterpret_cast<ARGB*>(words.data()), words.size()});
    return words;
}

/// Opaque pixels, half of them of the key colour: in long runs, or scattered.
inline std::vector<uint32_t> KeyedPicture(int side, bool runs) {
    std::vector<uint32_t> words = StraightPicture(side, side, runs);
    for (uint32_t& word : words) {
        const bool key = runs ? word >> 24 == 0 : word >> 24 < 128;
        word = key ? kMagenta : word & 0xFFFFFF;
    }
    return words;
}

inline std::shared_ptr<Pixels> Square(int side, const std::vector<uint32_t>& words) {
    auto pixels = std::make_shared<Pixels>(side, side);
    pixels->Set(words);
    return pixels;
}
inline std::shared_ptr<Pixels> Target(int side) {
    return std::make_shared<Pixels>(side, side, kGround);
}

/// Adds the work for each side: `make(side)` answers what makes the pixels and the operation.
template <class Make>
void AddSides(const std::string& work, const std::string& who, Make make) {
    for (const int side : kSides) Beside(work, std::to_string(side), who, make(side));
}

}  // namespace vxgui::bench
