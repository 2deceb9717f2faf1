#pragma once

#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {

/// The format flags of `DrawText`, with what some of them do to others.
class DrawTextOptions {
public:
    explicit DrawTextOptions(UINT flags) : flags_(flags) {
        if (Has(DT_TABSTOP)) {
            // The length of the stops hides the flags whose bits it lies in.
            constexpr UINT kLength = 0xFF00;
            if ((flags & kLength) != 0) tabLength_ = static_cast<int>((flags & kLength) >> 8);
            flags_ &= ~kLength;
        }
        if (Has(DT_SINGLELINE)) flags_ &= ~UINT{DT_WORDBREAK};
        if (Has(DT_CALCRECT)) flags_ |= DT_NOCLIP;
    }

    bool Has(UINT flag) const { return (flags_ & flag) != 0; }
    bool AnyEllipsis() const { return Has(DT_END_ELLIPSIS | DT_WORD_ELLIPSIS | DT_PATH_ELLIPSIS); }
    /// From one tab stop to the next, in average character widths.
    int TabLength() const { return tabLength_; }

private:
    UINT flags_;
    int tabLength_ = 8;
};

}  // namespace vxgui::gdi
