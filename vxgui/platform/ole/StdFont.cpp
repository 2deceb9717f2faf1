#include <cmath>

#include "vxgui/base/Error.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {
namespace {

constexpr double kSizeSteps = 10000;
constexpr double kLargestSize = 1e9;  // far beyond any font, and exact to its steps in a double
constexpr int16_t kNormalWeight = 400;
constexpr int16_t kBoldWeight = 700;

}  // namespace

StdFont::StdFont() = default;
StdFont::~StdFont() { DropHandle(); }

// The watcher may drop the last outside reference, or watch with another function.
template <class T>
void StdFont::Change(T& field, const T& value, const char* property) {
    if (field == value) return;
    const KeepAlive keep(this);
    field = value;
    DropHandle();
    if (const Watcher watcher = watcher_) watcher(property);
}

void StdFont::Name(const String& value) { Change(name_, value, "Name"); }

void StdFont::Charset(int16_t value) { Change(charset_, value, "CharSet"); }

void StdFont::Size(double value) {
    if (!(value >= 0 && value <= kLargestSize)) {
        throw Error(ErrorNumber::InvalidCall, "StdFont.Size", "Invalid property value");
    }
    Change(size_, std::nearbyint(value * kSizeSteps) / kSizeSteps, "Size");
}

void StdFont::Bold(bool value) {
    if (value != Bold()) Change(weight_, value ? kBoldWeight : kNormalWeight, "Bold");
}

void StdFont::Italic(bool value) { Change(italic_, value, "Italic"); }

void StdFont::Underline(bool value) { Change(underline_, value, "Underline"); }

void StdFont::Strikethrough(bool value) { Change(strikethrough_, value, "Strikethrough"); }

void StdFont::Weight(int16_t value) { Change(weight_, value, "Weight"); }

gdi::HFONT StdFont::hFont() const {
    if (!font_) {
        const int height = RoundHalfEven(-size_ * gdi::ScreenDpi() / 72);
        font_ = gdi::CreateFontA(height, 0, 0, 0, weight_, italic_, underline_, strikethrough_,
                                 static_cast<DWORD>(charset_), 0, 0, 0, 0,
                                 kernel::AnsiFromText(name_).c_str());
    }
    return font_;
}

void StdFont::DropHandle() const {
    if (font_) gdi::DeleteObject(font_);
    font_ = nullptr;
}

}  // namespace vxgui::ole
