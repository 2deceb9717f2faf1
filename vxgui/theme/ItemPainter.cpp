#include "vxgui/theme/ItemPainter.h"

#include <algorithm>

#include "vxgui/pixels/Blend.h"
#include "vxgui/pixels/Recover.h"
#include "vxgui/platform/gdi.h"

namespace vxgui {
namespace {

constexpr ARGB kBlack{0, 0, 0, 255}, kWhite{255, 255, 255, 255};

/// Rows of pixels, the top one first.
class View {
public:
    View(void* top, int32_t width, int32_t height, ptrdiff_t stride)
        : top_(static_cast<uint8_t*>(top)), width_(width), height_(height), stride_(stride) {}
    explicit View(const gdi::HostPixels& pixels)
        : View(pixels.bits, pixels.width, pixels.height, pixels.stride) {
        if (!pixels.bottomUp) return;
        top_ += (height_ - 1) * stride_;
        stride_ = -stride_;
    }

    int32_t width() const { return width_; }
    int32_t height() const { return height_; }
    std::span<ARGB> Row(int32_t y) const {
        return {reinterpret_cast<ARGB*>(top_ + y * stride_), static_cast<size_t>(width_)};
    }
    View Part(const gdi::RECT& box) const {
        return {Row(box.top).data() + box.left, box.right - box.left, box.bottom - box.top,
                stride_};
    }
    gdi::HostPixels Pixels() const { return {top_, width_, height_, stride_, false}; }

private:
    uint8_t* top_;
    int32_t width_;
    int32_t height_;
    ptrdiff_t stride_;
};

/// A context over pixels for the length of a scope; null where they can't be drawn on.
class HostContext {
public:
    explicit HostContext(const gdi::HostPixels& pixels) : dc_(gdi::CreateHostDC(pixels)) {}
    ~HostContext() {
        if (dc_) gdi::DeleteDC(dc_);
    }
    HostContext(const HostContext&) = delete;
    HostContext& operator=(const HostContext&) = delete;

    gdi::HDC get() const { return dc_; }

private:
    const gdi::HDC dc_;
};

/// Pixels of one colour.
class Ground {
public:
    Ground(int32_t width, int32_t height, ARGB colour)
        : pixels_(static_cast<size_t>(width) * static_cast<size_t>(height), colour),
          view_(pixels_.data(), width, height, ptrdiff_t{width} * 4) {}

    const View& view() const { return view_; }

private:
    std::vector<ARGB> pixels_;
    View view_;
};

gdi::RECT Common(const gdi::RECT& box, const View& view) {
    return {std::max(box.left, 0), std::max(box.top, 0), std::min(box.right, view.width()),
            std::min(box.bottom, view.height())};
}

bool IsOpaque(const View& view) {
    for (int32_t y = 0; y < view.height(); ++y) {
        for (const ARGB& pixel : view.Row(y))
            if (pixel.Alpha != 255) return false;
    }
    return true;
}

/// An item at its place in a view.
struct Painting {
    ThemeItem& item;
    const String& caption;
    gdi::RECT box;

    bool DrawOn(const View& view) const {
        const HostContext context(view.Pixels());
        const gdi::HDC dc = context.get();
        if (!dc) return false;
        int32_t right = box.right, bottom = box.bottom;
        item.DrawBackground(dc, box.left, box.top, right - box.left, bottom - box.top, -1, -1);
        if (!caption.empty())
            item.DrawText(dc, caption, DT_SINGLELINE, -1, box.left, box.top, right, bottom);
        return true;
    }
};

// Drawing leaves the alpha byte in many states.
bool PaintOnOpaque(const Painting& painting, const View& view) {
    if (!painting.DrawOn(view)) return false;
    for (int32_t y = 0; y < view.height(); ++y)
        for (ARGB& pixel : view.Row(y)) pixel.Alpha = 255;
    return true;
}

bool PaintByAlpha(const Painting& painting, const View& view) {
    const Ground black(view.width(), view.height(), kBlack);
    const Ground white(view.width(), view.height(), kWhite);
    if (!painting.DrawOn(black.view()) || !painting.DrawOn(white.view())) return false;
    for (int32_t y = 0; y < view.height(); ++y) {
        const std::span<ARGB> shown = black.view().Row(y);
        std::ranges::transform(shown, white.view().Row(y), shown.begin(), Recover);
        BlendPremultiplied(shown, view.Row(y));
    }
    return true;
}

/// An item's state for the length of a scope.
class StateOf {
public:
    StateOf(ThemeItem& item, int32_t state) : item_(item), before_(item.State()) {
        item_.State(state);
    }
    ~StateOf() { item_.State(before_); }
    StateOf(const StateOf&) = delete;
    StateOf& operator=(const StateOf&) = delete;

private:
    ThemeItem& item_;
    const int32_t before_;
};

}  // namespace

bool PaintItem(ThemeItem& item, int32_t state, const String& caption, const gdi::HostPixels& pixels,
               const gdi::RECT& box) {
    if (!HostContext(pixels).get()) return false;
    const View whole(pixels);
    const gdi::RECT seen = Common(box, whole);
    if (seen.left >= seen.right || seen.top >= seen.bottom) return true;
    const StateOf shown(item, state);
    const View view = whole.Part(seen);
    const Painting painting{
        item,
        caption,
        {box.left - seen.left, box.top - seen.top, box.right - seen.left, box.bottom - seen.top}};
    return IsOpaque(view) ? PaintOnOpaque(painting, view) : PaintByAlpha(painting, view);
}

}  // namespace vxgui
