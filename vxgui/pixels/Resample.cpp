#include "vxgui/pixels/Resample.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "vxgui/base/Rounding.h"

namespace vxgui {

namespace {

/// A place between two samples.
struct Between {
    Between(int32_t position, float step) {
        const float place = static_cast<float>(position) * step;
        const float whole = std::floor(place);
        index = static_cast<size_t>(whole);
        fraction = place - whole;
    }
    float Mix(int32_t first, int32_t second) const {
        return (1 - fraction) * static_cast<float>(first) + fraction * static_cast<float>(second);
    }
    size_t index;
    float fraction;
};

float Step(int32_t size, int32_t targetSize) {
    return static_cast<float>(size - 1) / static_cast<float>(targetSize);
}

/// The bytes of a picture. Those behind its end are 0: they are only read with a weight of 0.
class Bytes {
public:
    explicit Bytes(std::span<const ARGB> pixels)
        : bytes_(reinterpret_cast<const uint8_t*>(pixels.data())), size_(pixels.size_bytes()) {}
    uint8_t operator[](size_t i) const { return i < size_ ? bytes_[i] : 0; }

private:
    const uint8_t* bytes_;
    size_t size_;
};

/// The six bytes from `offset` on, mixed with those one row on.
std::array<int32_t, 6> MixRows(const Bytes& bytes, size_t offset, size_t rowBytes,
                               const Between& y) {
    std::array<int32_t, 6> mixed;
    for (size_t k = 0; k < mixed.size(); ++k) {
        mixed[k] = RoundHalfEven(y.Mix(bytes[offset + k], bytes[offset + rowBytes + k]));
    }
    return mixed;
}

}  // namespace

void ResampleBilinear(std::span<const ARGB> source, int32_t sourceWidth, std::span<ARGB> target,
                      int32_t targetWidth) {
    if (sourceWidth < 1 || targetWidth < 1) return;
    const auto rows = [](size_t pixels, int32_t width) {
        return static_cast<int32_t>(pixels / static_cast<size_t>(width));
    };
    const int32_t sourceHeight = rows(source.size(), sourceWidth);
    const int32_t targetHeight = rows(target.size(), targetWidth);
    if (sourceHeight < 1 || targetHeight < 1) return;
    const float rx = Step(sourceWidth, targetWidth), ry = Step(sourceHeight, targetHeight);
    const size_t rowBytes = static_cast<size_t>(sourceWidth) * sizeof(ARGB);
    const Bytes bytes(source);
    ARGB* pixel = target.data();
    for (int32_t row = 0; row < targetHeight; ++row) {
        const Between y(row, ry);
        for (int32_t column = 0; column < targetWidth; ++column, ++pixel) {
            const Between x(column, rx);
            const auto v = MixRows(bytes, y.index * rowBytes + x.index * sizeof(ARGB), rowBytes, y);
            const auto channel = [&](size_t k) {
                return static_cast<uint8_t>(
                    std::clamp(RoundHalfEven(x.Mix(v[k], v[k + 3])), 0, 255));
            };
            *pixel = {channel(0), channel(1), channel(2), pixel->Alpha};
        }
    }
}

}  // namespace vxgui
