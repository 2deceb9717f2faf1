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
    size_t weight = 0;  ///< in bytes, without the mask
};

/// The strings that a thread has laid out lately: a repaint draws the same ones again and again,
/// and each is measured before it is drawn.
class LayoutCache {
public:
    /// Bytes, all strings together, with what was drawn of them.
    static constexpr size_t kBound = size_t{4} << 20;

    /// Valid until the next call.
    KeptLayout& Find(std::u16string_view text, const LayoutRequest& request);
    /// Counts what the layout that was found last has been given since.
    void Weigh(const KeptLayout& found);
    void Clear() { layouts_.Clear(); }
    size_t Cost() const { return layouts_.Cost(); }

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

    gdi::LruCache<Key, KeptLayout, Hash, Equal> layouts_{kBound};
};

}  // namespace vxgui::gdiplus
