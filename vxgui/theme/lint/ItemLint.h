#pragma once

#include <array>

#include "vxgui/theme/lint/StripLint.h"

namespace vxgui::lint {

/// The keys of four margins: left, top, right, bottom. In one dialect they are one key.
struct MarginKeys {
    const char* what;
    std::array<const char*, 4> sides;
};

struct ItemDialect {
    StripKeys image;
    StripKeys glyph;
    MarginKeys imageMargin;
    MarginKeys contentMargin;
    bool marginsAreLists;
    /// A glyph's count below 1 stands for the image's, and not only where the key is absent.
    bool glyphBorrowsFrames;
    KeyTable keys;
    KeyTable otherKeys;
};

VXGUI_LOCAL const ItemDialect& ThemeSetDialect();
VXGUI_LOCAL const ItemDialect& UisDialect();

/// One item's section under check: what both dialects have in common.
class VXGUI_LOCAL ItemLint {
public:
    ItemLint(Page& page, const String& section, const ItemDialect& dialect);

    /// `fallback` is the image's name where the section has none; `missing` what else to say of an
    /// image that isn't there.
    void Check(PictureShelf& shelf, const String& folder, const String& fallback = {},
               const char* missing = "");
    const StripLint& Image() const { return image_; }

private:
    using Sides = std::array<int32_t, 4>;

    void CheckNeeds();
    void CheckStates();
    void CheckMargins();
    int32_t GlyphFrames() const;
    bool ReadSides(const MarginKeys& keys, Sides& sides) const;
    void CheckImageMargin(const Sides& sides, size_t first, int32_t extent, const char* wide);
    const char* KeyOf(const MarginKeys& keys, size_t first) const;

    Page& page_;
    const String section_;
    const ItemDialect& dialect_;
    StripLint image_;
    StripLint glyph_;
};

}  // namespace vxgui::lint
