#pragma once

#include <algorithm>
#include <functional>
#include <vector>

#include "tests/surface/SurfaceSupport.h"

/// A plain scalar account of a whole blit, pixel by pixel, from the rules of the compositor.
namespace vxgui::test::reference {

struct Geometry {
    int x, y, w, h, sx, sy, sw, sh;
};

/// A picture with row 0 at the top.
struct Canvas {
    int width, height;
    std::vector<ARGB> pixels;

    bool Has(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
    ARGB& At(int x, int y) { return pixels[static_cast<size_t>(y * width + x)]; }
    ARGB Or(int x, int y, ARGB none) const {
        return Has(x, y) ? pixels[static_cast<size_t>(y * width + x)] : none;
    }
};

inline Canvas CanvasOf(const Ref<cAlphaDIBSection>& surface) {
    Canvas canvas{surface->Width(), surface->Height(), {}};
    for (int y = 0; y < canvas.height; ++y) {
        for (int x = 0; x < canvas.width; ++x) {
            canvas.pixels.push_back(ARGBFromValue(surface->GetPixel(x, y)));
        }
    }
    return canvas;
}

/// The source pixel that destination pixel i of n shows when m pixels fill them: the nearest,
/// ties to the lower one.
inline int Nearest(int i, int n, int m) { return n == m ? i : ((2 * i + 1) * m - 1) / (2 * n); }

using PixelRule = std::function<ARGB(ARGB source, ARGB target)>;

/// Pixels that the source does not have count as clear black, as in a fresh scratch bitmap.
inline void Blit(Canvas& target, const Canvas& source, const Geometry& g, const PixelRule& rule) {
    for (int j = 0; j < g.h; ++j) {
        for (int i = 0; i < g.w; ++i) {
            if (!target.Has(g.x + i, g.y + j)) continue;
            const ARGB from =
                source.Or(g.sx + Nearest(i, g.w, g.sw), g.sy + Nearest(j, g.h, g.sh), ARGB{});
            ARGB& to = target.At(g.x + i, g.y + j);
            to = rule(from, to);
        }
    }
}

inline uint8_t Low(int value) { return static_cast<uint8_t>(value); }

inline ARGB Constant(ARGB s, ARGB d, int alpha) {
    const int da = 256 - alpha;
    return {Low((s.Blue * alpha + d.Blue * da) / 256), Low((s.Green * alpha + d.Green * da) / 256),
            Low((s.Red * alpha + d.Red * da) / 256), d.Alpha};
}

inline ARGB Straight(ARGB s, ARGB d, int alpha) {
    const int a = s.Alpha * alpha / 256;
    const int inv = 256 - a;
    return {Low(s.Blue * a / 256 + d.Blue * inv / 256),
            Low(s.Green * a / 256 + d.Green * inv / 256), Low(s.Red * a / 256 + d.Red * inv / 256),
            Low(s.Alpha * a / 256 + d.Alpha * inv / 256)};
}

inline ARGB Premultiplied(ARGB s, ARGB d) {
    const int inv = 256 - s.Alpha;
    const auto channel = [&](int from, int to) {
        return Low(std::min(255, from + to * inv / 256));
    };
    return {channel(s.Blue, d.Blue), channel(s.Green, d.Green), channel(s.Red, d.Red),
            channel(s.Alpha, d.Alpha)};
}

inline ARGB Alpha(ARGB s, ARGB d, int alpha, bool hasAlpha) {
    if (alpha == 0) return d;
    if (!hasAlpha) return Constant(s, d, alpha);
    return alpha == 255 ? Premultiplied(s, d) : Straight(s, d, alpha);
}

/// `key` has red in the lowest byte.
inline ARGB Keyed(ARGB s, ARGB d, int key) {
    return s.Red == (key & 255) && s.Green == (key >> 8 & 255) && s.Blue == (key >> 16 & 255) ? d
                                                                                              : s;
}

}  // namespace vxgui::test::reference
