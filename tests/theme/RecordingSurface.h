#pragma once

#include <string>
#include <vector>

#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::test {

/// A surface that writes down what is asked of it instead of painting.
class RecordingSurface : public cAlphaDIBSection {
public:
    RecordingSurface(int32_t width, int32_t height) { Create(width, height); }

    std::vector<std::string> calls;
    std::vector<int32_t> asked;  ///< where it was looked for an alpha channel last
    int premultiplied = 0;
    int keyed = 0;

    void PaintPicture(gdi::HDC, int32_t x, int32_t y, int32_t w, int32_t h, int32_t sx, int32_t sy,
                      int32_t sw, int32_t sh, uint32_t rop) override {
        Record("copy", {x, y, w, h, sx, sy, sw, sh}, rop == gdi::SRCCOPY ? "" : " rop");
    }
    void TransPaintPicture(gdi::HDC, int32_t x, int32_t y, int32_t w, int32_t h, int32_t sx,
                           int32_t sy, int32_t sw, int32_t sh, int32_t key) override {
        Record("key", {x, y, w, h, sx, sy, sw, sh}, " " + std::to_string(key));
    }
    void AlphaPaintPicture(gdi::HDC, int32_t x, int32_t y, int32_t w, int32_t h, int32_t sx,
                           int32_t sy, int32_t sw, int32_t sh, uint8_t alpha,
                           bool channel) override {
        Record("alpha", {x, y, w, h, sx, sy, sw, sh},
               " " + std::to_string(alpha) + (channel ? " channel" : " none"));
    }
    bool HasAlphaChannel(int32_t left, int32_t top, int32_t right, int32_t bottom) override {
        calls.push_back("ask");
        asked = {left, top, right, bottom};
        return hasAlpha;
    }
    void PreMultiplyAlpha() override {
        ++premultiplied;
        cAlphaDIBSection::PreMultiplyAlpha();
    }
    Variant SetTransColor(int32_t color) override {
        ++keyed;
        return cAlphaDIBSection::SetTransColor(color);
    }

    bool hasAlpha = true;

private:
    void Record(const char* what, std::initializer_list<int32_t> numbers, const std::string& tail) {
        std::string line = what;
        for (int32_t number : numbers) line += " " + std::to_string(number);
        calls.push_back(line + tail);
    }
};

}  // namespace vxgui::test
