#include "vxgui/platform/gdiplus/text/FontPlace.h"

#include <cmath>
#include <cstring>

#include "vxgui/base/Rounding.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::gdiplus {
namespace {

constexpr double kTenthsPerRadian = 1800 / 3.14159265358979323846;

// The angle of a base line, anticlockwise, in tenths of a degree from 0 to 3599.
LONG Escapement(const Affine& world) {
    const double tenths = std::atan2(-world.m12, world.m11) * kTenthsPerRadian;
    return (RoundHalfEven(tenths) + 3600) % 3600;
}

}  // namespace

double EmInWorld(const Font& font, const Graphics& graphics) {
    if (font.unit == UnitWorld) return font.size;
    const double pageUnit = graphics.PageToDevice().m22;
    return font.SizeInPixels(graphics.Target().DpiY()) / (pageUnit != 0 ? pageUnit : 1);
}

gdi::LOGFONTA LogFontOf(const Font& font, const Graphics& graphics) {
    constexpr BYTE kDefaultCharSet = 1;
    const Affine world = graphics.WorldToDevice();
    gdi::LOGFONTA record{};
    record.lfHeight = -RoundHalfEven(EmInWorld(font, graphics) * std::hypot(world.m21, world.m22));
    record.lfEscapement = record.lfOrientation = Escapement(world);
    record.lfWeight = font.style & FontStyleBold ? 700 : 400;
    record.lfItalic = (font.style & FontStyleItalic) != 0;
    record.lfUnderline = (font.style & FontStyleUnderline) != 0;
    record.lfStrikeOut = (font.style & FontStyleStrikeout) != 0;
    record.lfCharSet = kDefaultCharSet;
    const std::string name = kernel::AnsiFromText(String(font.family->info.name16));
    std::strncpy(record.lfFaceName, name.c_str(), sizeof record.lfFaceName - 1);
    return record;
}

}  // namespace vxgui::gdiplus
