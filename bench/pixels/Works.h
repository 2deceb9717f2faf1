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

/// Where the key stands in half of a picture's pixels: in runs of a quarter of a row, around discs of
/// 13 pixels as in a strip of glyphs, or at random.
enum class Keys { Runs, Glyphs, Scattered };
constexpr std::pair<Keys, const char*> kKeyWorks[] = {
    {Keys::Runs, "key-runs"}, {Keys::Glyphs, "key-glyphs"}, {Keys::Scattered, "key-scattered"}};

/// Whether pixel `i` of a picture lies around the discs.
inline bool AroundGlyphs(int i, int side) {
    constexpr int kCell = 16, kTwiceCentre = kCell - 1, kFourSquaredRadii = 163;  // half of a cell
    const int x = 2 * (i % side % kCell) - kTwiceCentre, y = 2 * (i / side % kCell) - kTwiceCentre;
    return x * x + y * y > kFourSquaredRadii;
}

/// Opaque pixels, half of them of the key colour.
inline std::vector<uint32_t> KeyedPicture(int side, Keys keys) {
    std::vector<uint32_t> words = StraightPicture(side, side, keys == Keys::Runs);
    for (int i = 0; uint32_t& word : words) {
        const bool key = keys == Keys::Runs     ? word >> 24 == 0
                         : keys == Keys::Glyphs ? AroundGlyphs(i, side)
                                                : word >> 24 < 128;
        word = key ? kMagenta : word & 0xFFFFFF;
        ++i;
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
