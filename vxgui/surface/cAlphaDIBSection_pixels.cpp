#include <chrono>
#include <random>

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/surface/modDraw.h"

namespace vxgui {

namespace {

/// Uniform values in [0, 1), seeded from the clock.
class Noise {
public:
    Noise()
        : engine_(
              static_cast<uint32_t>(std::chrono::system_clock::now().time_since_epoch().count())) {}
    double Next() { return std::generate_canonical<double, 53>(engine_); }
    uint8_t NextByte() { return RoundHalfEven<uint8_t>(Next() * 255); }

private:
    std::mt19937 engine_;
};

ARGB GrayNoise(Noise& noise) {
    const uint8_t gray = noise.NextByte();
    const uint8_t alpha = noise.NextByte();
    const auto channel = RoundHalfEven<uint8_t>(alpha * gray / 255.0);
    return {channel, channel, channel, alpha};
}

ARGB ColourNoise(Noise& noise) {
    const uint8_t alpha = noise.NextByte();
    const auto channel = [&] { return RoundHalfEven<uint8_t>(noise.Next() * 255 * alpha / 255); };
    const uint8_t blue = channel();
    const uint8_t green = channel();
    const uint8_t red = channel();
    return {blue, green, red, alpha};
}

}  // namespace

int32_t cAlphaDIBSection::GetPixel(int32_t X, int32_t Y) {
    const std::span<const ARGB> pixels = Pixels();
    const int64_t element = (int64_t{Height()} - Y - 1) * Width() + X;
    if (element < 0 || static_cast<size_t>(element) >= pixels.size()) return 0;
    return ValueFromARGB(pixels[static_cast<size_t>(element)]);
}

// Hosts have come to rely on its being without effect.
void cAlphaDIBSection::SetPixel(int32_t, int32_t, int32_t) {}

void cAlphaDIBSection::PreMultiplyAlpha() {
    if (flags_ & kPremultiplied) return;
    const std::span<ARGB> pixels = Pixels();
    PreMultiplyBits(pixels.data(), static_cast<int32_t>(pixels.size_bytes()));
    flags_ |= kPremultiplied;
}

void cAlphaDIBSection::RandomiseBits(bool bGray) {
    Noise noise;
    for (ARGB& pixel : Pixels()) pixel = bGray ? GrayNoise(noise) : ColourNoise(noise);
}

int32_t cAlphaDIBSection::DrawEdge(uint32_t edge, uint32_t grfFlags) {
    gdi::RECT whole{0, 0, Width(), Height()};
    return gdi::DrawEdge(hDC_, &whole, edge, grfFlags);
}

}  // namespace vxgui
