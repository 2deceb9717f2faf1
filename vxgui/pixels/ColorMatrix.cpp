#include "vxgui/pixels/ColorMatrix.h"

#include "vxgui/pixels/Multiversion.h"

namespace vxgui {
namespace {

float Channel(uint32_t pixel, int shift) {
    return static_cast<float>(static_cast<int32_t>(pixel >> shift & 255));
}

// A sum that is no number counts as 0.
uint32_t Byte(float value) {
    const float atLeast0 = value > 0 ? value : 0;
    const float bounded = atLeast0 < 255 ? atLeast0 : 255;
    return static_cast<uint32_t>(static_cast<int32_t>(bounded + 0.5f));
}

// The matrix as the loop wants it: the shift in units of a byte.
struct Columns {
    float rows[4][4];
    float shift[4];

    explicit Columns(const ColorMatrix5& matrix) {
        for (int to = 0; to < 4; ++to) {
            for (int from = 0; from < 4; ++from) rows[from][to] = matrix[from][to];
            shift[to] = matrix[4][to] * 255;
        }
    }
};

inline __attribute__((always_inline)) uint32_t Turned(uint32_t pixel, const Columns& m) {
    const float r = Channel(pixel, 16), g = Channel(pixel, 8), b = Channel(pixel, 0),
                a = Channel(pixel, 24);
    uint32_t to[4];
    for (int i = 0; i < 4; ++i) {
        to[i] = Byte(r * m.rows[0][i] + g * m.rows[1][i] + b * m.rows[2][i] + a * m.rows[3][i] +
                     m.shift[i]);
    }
    return to[3] << 24 | to[0] << 16 | to[1] << 8 | to[2];
}

VXGUI_MULTIVERSION(void, TurnLoop, (uint32_t * pixels, size_t count, const Columns& columns)) {
    const Columns m = columns;
    for (size_t i = 0; i < count; ++i) pixels[i] = Turned(pixels[i], m);
}

bool IsGray(uint32_t pixel) {
    const uint32_t blue = pixel & 255;
    return (pixel >> 8 & 255) == blue && (pixel >> 16 & 255) == blue;
}

}  // namespace

void ApplyColorMatrix(std::span<uint32_t> pixels, const ColorMatrix5& matrix) {
    TurnLoop(pixels.data(), pixels.size(), Columns(matrix));
}

void ApplyColorMatrix(std::span<uint32_t> pixels, const ColorMatrix5& matrix,
                      const ColorMatrix5* grays) {
    const Columns colors(matrix);
    const Columns ofGrays(grays ? *grays : matrix);
    for (uint32_t& pixel : pixels) {
        if (!IsGray(pixel)) {
            pixel = Turned(pixel, colors);
        } else if (grays) {
            pixel = Turned(pixel, ofGrays);
        }
    }
}

}  // namespace vxgui
