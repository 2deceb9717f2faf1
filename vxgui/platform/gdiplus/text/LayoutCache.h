#pragma once

#include <string>

#include "vxgui/platform/gdi/text/LruCache.h"
#include "vxgui/platform/gdiplus/text/TextMask.h"

namespace vxgui::gdiplus {

/// A layout with its coverage as it was drawn last.
struct KeptLayout {
    StringLayout layout;
    MaskPlace place;
    TextMask mask;
    bool hasMask = false;
};

/// The strings that a thread has laid out lately: a repaint draws the same ones again and again,
/// and each is measured before it is drawn.
class LayoutCache {
public:
    /// Valid until the next call.
    KeptLayout& Find(std::u16string_view text, const LayoutRequest& request);
    void Clear() { layouts_.Clear(); }

private:
    struct View {
        std::u16string_view text;
        uint64_t family;
        INT style;
        double em;
        GpSizeF room;
        const FormatSettings& format;
    };
    struct Key {
        Key(const View& view);
        operator View() const { return {text, family, style, em, room, format}; }

        std::u16string text;
        uint64_t family;
        INT style;
        double em;
        GpSizeF room;
        FormatSettings format;
    };
    struct Hash {
        using is_transparent = void;
        size_t operator()(const View& view) const;
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(const View& a, const View& b) const;
    };

    // 16-bit units, all strings together, each with what an entry weighs besides its text.
    static constexpr size_t kBound = 32 * 1024;
    static constexpr size_t kEntry = 128;

    gdi::LruCache<Key, KeptLayout, Hash, Equal> layouts_{kBound};
};

}  // namespace vxgui::gdiplus
