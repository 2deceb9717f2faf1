#include "tools/view/Ground.h"

#include <algorithm>
#include <cstdlib>

#include "tools/vxgui/PictureFile.h"

namespace vxgui::view {
namespace {

bool IsHexColour(const std::string& text) {
    return text.size() == 7 && text[0] == '#' &&
           text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
}

}  // namespace

void Ground::Paint(tool::Sheet& sheet) const {
    if (kind == Kind::Checks) return sheet.FillChecks(0, 0, sheet.width(), sheet.height());
    sheet.Fill(colour);
    if (kind == Kind::Picture && picture) PaintPicture(sheet);
}

// From the left top corner on, again and again.
void Ground::PaintPicture(tool::Sheet& sheet) const {
    const int32_t width = picture->Width(), height = std::abs(picture->Height());
    if (width < 1 || height < 1) return;
    for (int32_t y = 0; y < sheet.height(); y += height) {
        for (int32_t x = 0; x < sheet.width(); x += width)
            picture->AlphaPaintPicture(sheet.dc(), x, y, width, height);
    }
    sheet.MakeOpaque();
}

Ground GroundOf(const std::string& text) {
    if (text == "checks") return {};
    if (IsHexColour(text)) {
        const auto rgb = static_cast<uint32_t>(std::stoul(text.substr(1), nullptr, 16));
        return {Ground::Kind::Colour, 0xFF000000 | rgb, nullptr};
    }
    const Ref<cAlphaDIBSection> picture = tool::ReadPicture(text);
    picture->PreMultiplyAlpha();
    return {Ground::Kind::Picture, 0xFFFFFFFF, picture};
}

}  // namespace vxgui::view
