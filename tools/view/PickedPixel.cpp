#include "tools/view/PickedPixel.h"

#include <array>
#include <cstdio>

namespace vxgui::view {

std::string PickedPixel::Place() const {
    return std::to_string(at.x) + ", " + std::to_string(at.y);
}

std::string PickedPixel::Hex() const {
    std::array<char, 8> text;
    std::snprintf(text.data(), text.size(), "#%06X", shown & 0xFFFFFFu);
    return text.data();
}

std::string PickedPixel::Bgra() const {
    if (!onItem) return {};
    std::string text;
    for (int shift : {0, 8, 16, 24})
        text += (shift ? " " : "") + std::to_string(itself >> shift & 255);
    return text;
}

}  // namespace vxgui::view
