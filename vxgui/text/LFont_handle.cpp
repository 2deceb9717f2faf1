#include "vxgui/base/OutOfMemory.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

gdi::HFONT LFont::hFont() try {
    const KeepAlive keep(this);
    if (!Name.empty() && !font_) {
        font_ = gdi::CreateFontA(Height, Width, Escapement, Orientation, Weight, Italic, Underline,
                                 StrikeOut, CharSet, OutPrecision, ClipPrecision, Quality,
                                 PitchAndFamily, kernel::AnsiFromText(Name).c_str());
        stock_ = false;
    }
    if (!font_) {
        font_ = static_cast<gdi::HFONT>(gdi::GetStockObject(gdi::DEFAULT_GUI_FONT));
        stock_ = true;
    }
    return font_;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.hFont");
}

Ref<class GpFont> LFont::GpFont() try {
    const KeepAlive keep(this);
    if (!gpFont_) {
        gpFont_ = New<class GpFont>();
        gpFont_->FromStdFont(StdFont());
    }
    return gpFont_;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.GpFont");
}

void LFont::Dispose() {
    const KeepAlive keep(this);
    if (font_ && !stock_) gdi::DeleteObject(font_);
    font_ = nullptr;
    gpFont_ = nullptr;
}

}  // namespace vxgui
