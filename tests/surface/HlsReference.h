#pragma once

#include <cmath>
#include <cstdint>
#include <ostream>

#include "vxgui/pixels/ARGB.h"

/// A plain account of the hue, lightness and saturation adjustment of one pixel, rule by rule.
/// Named float values have single precision, the expressions around them double.
namespace vxgui::test::reference {

struct HlsSettings {
    float hue, luminance, saturation;
    bool colourize;
};
inline void PrintTo(const HlsSettings& s, std::ostream* out) {
    *out << "hue " << s.hue << " luminance " << s.luminance << " saturation " << s.saturation
         << (s.colourize ? " colourize" : "");
}

inline int Rounded(double value) { return static_cast<int>(std::nearbyint(value)); }
inline int Sign(float value) { return value > 0 ? 1 : value < 0 ? -1 : 0; }
inline float Bounded(float value, float low, float high) {
    return value < low ? low : value > high ? high : value;
}

class HlsPixel {
public:
    explicit HlsPixel(const HlsSettings& s) : s_(s) {
        const int i = Rounded(s.hue) % 360;
        h = static_cast<float>(i / 60.0);
        if (h < -1) h = static_cast<float>(h + 6.0);
        if (h > 5) h = static_cast<float>(h - 6.0);
        hSign = Sign(h);
        const float saturation = Bounded(s.saturation, s.colourize ? 0 : -100, 100);
        sf = static_cast<float>(saturation / 100.0);
        inv = static_cast<float>(1.0 - sf);
        sSign = Sign(sf);
        const float luminance = Bounded(s.luminance, -100, 100);
        const auto lf = static_cast<float>(luminance / 100.0);
        lInt = Rounded(luminance);
        if (lf > 0) {
            lBase = Rounded(lf * 255.0);
            lMul = Rounded((1.0 - lf) * 65536);
        } else if (lf < 0) {
            lBase = Rounded(lf * 255.0 + 255);
            lMul = Rounded((lf + 1.0) * 65536);
        }
    }

    ARGB Adjust(ARGB pixel) {
        R = pixel.Red;
        G = pixel.Green;
        B = pixel.Blue;
        if (s_.colourize) {
            Colourize();
        } else if (hSign != 0) {
            TurnHue();
        } else if (sSign != 0) {
            Saturate();
        }
        return {Stored(B), Stored(G), Stored(R), pixel.Alpha};
    }

private:
    void Colourize() {
        float circle = h;
        if (circle < 0) circle = static_cast<float>(circle + 6.0);
        const int p = Rounded(circle * 255.0);
        const auto sp = static_cast<float>(sf + 1.0);
        const int sb = Rounded(sf * 255.0) & 255;
        const int avg = (R + G + B) / 3;
        if (sSign == 0) {
            R = G = B = avg;
            return;
        }
        const int lo = avg < 128 ? Rounded(avg * static_cast<double>(inv))
                                 : Rounded(avg * static_cast<double>(sp) - sb);
        const int hi = 2 * avg - lo;
        const auto mix = [&](int w) { return lo + ((hi - lo) * w) / 256; };
        const auto set = [&](int r, int g, int b) {
            R = r;
            G = g;
            B = b;
        };
        if (p < 255) {
            set(hi, mix(p), lo);
        } else if (p < 510) {
            set(mix(510 - p), hi, lo);
        } else if (p < 765) {
            set(lo, hi, mix(p - 510));
        } else if (p < 1020) {
            set(lo, mix(1020 - p), hi);
        } else if (p < 1275) {
            set(mix(p - 1020), lo, hi);
        } else {
            set(hi, lo, mix(1530 - p));
        }
    }

    void Stretch(int& max, int& min) const {
        const int d = max - min;
        const double s = sf;
        if (sSign > 0 && 255 - max > min) {
            max = Rounded(max + min * s);
            min = Rounded(min * static_cast<double>(inv));
        } else if (sSign > 0) {
            max = Rounded(max + (255 - max) * s);
            min = Rounded(min - (255 - max) * s);
        } else if (sSign < 0) {
            const double sp = static_cast<float>(s / 2.0);
            max = Rounded(max + d * sp);
            min = Rounded(min - d * sp);
        }
    }

    void TurnHue() {
        int max, min;
        float f;
        const auto divided = [](int a, int b) { return static_cast<double>(a) / b; };
        if (R > G && R > B) {
            max = R;
            min = G < B ? G : B;
            f = static_cast<float>(divided(G - B, max - min));
        } else if (R > G) {
            max = B;
            min = G;
            f = static_cast<float>(divided(R - G, max - min) + 4);
        } else if (B > G) {
            max = B;
            min = R;
            f = static_cast<float>(4 - divided(G - R, max - min));
        } else if (R > B) {
            max = G;
            min = B;
            f = static_cast<float>(2 - divided(R - B, max - min));
        } else {
            max = G;
            min = R;
            f = max == min ? 0 : static_cast<float>(divided(B - R, max - min) + 2);
        }
        int d = max - min;
        if (d > 0) {
            Stretch(max, min);
            d = max - min;
        }
        f = static_cast<float>(static_cast<double>(f) + h);
        if (f < -1) f = static_cast<float>(f + 6.0);
        if (f > 5) f = static_cast<float>(f - 6.0);
        const double x = f;
        const auto set = [&](int r, int g, int b) {
            R = r;
            G = g;
            B = b;
        };
        if (x < 0) {
            set(max, min, Rounded(min - x * d));
        } else if (x < 1) {
            set(max, Rounded(x * d + min), min);
        } else if (x < 2) {
            set(Rounded(min - (x - 2) * d), max, min);
        } else if (x < 3) {
            set(min, max, Rounded((x - 2) * d + min));
        } else if (x < 4) {
            set(min, Rounded(min - (x - 4) * d), max);
        } else {
            set(Rounded((x - 4) * d + min), min, max);
        }
    }

    void Saturate() {
        int *max, *mid, *min;
        if (R > G && R > B && B > G) {
            max = &R, mid = &B, min = &G;
        } else if (R > G && R > B) {
            max = &R, mid = &G, min = &B;
        } else if (R > G) {
            max = &B, mid = &R, min = &G;
        } else if (B > G) {
            max = &B, mid = &G, min = &R;
        } else if (R > B) {
            max = &G, mid = &R, min = &B;
        } else {
            max = &G, mid = &B, min = &R;
            if (*max == *min) return;
        }
        int newMax = *max;
        int newMin = *min;
        Stretch(newMax, newMin);
        *mid = Rounded(static_cast<double>((newMax - newMin) * (*mid - *min)) / (*max - *min) +
                       newMin);
        *max = newMax;
        *min = newMin;
    }

    uint8_t Stored(int c) const {
        if (lInt > 0) c = (lMul * c) / 65536 + lBase;
        if (lInt < 0) c = lBase - ((c ^ 255) * lMul) / 65536;
        return static_cast<uint8_t>(c < 0 ? 0 : c > 255 ? 255 : c);
    }

    HlsSettings s_;
    int R = 0, G = 0, B = 0;
    float h, sf, inv;
    int hSign, sSign, lInt, lBase = 0, lMul = 0;
};

}  // namespace vxgui::test::reference
