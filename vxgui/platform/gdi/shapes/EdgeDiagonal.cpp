#include "vxgui/platform/gdi/shapes/EdgeDiagonal.h"

#include "vxgui/platform/gdi/shapes/FillArea.h"
#include "vxgui/platform/gdi/shapes/ThinLine.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

class Diagonal {
public:
    Diagonal(const DeviceContext& dc, const RECT& r, const EdgeLook& look, UINT flags)
        : dc_(dc),
          r_(r),
          look_(look),
          toTop_((flags & BF_TOP) || !(flags & BF_BOTTOM)),
          toRight_((flags & BF_RIGHT) || !(flags & BF_LEFT)) {}

    void Draw() const {
        const LONG left = r_.left, top = r_.top, right = r_.right - 1, bottom = r_.bottom - 1;
        const POINT end{toRight_ ? right : left, toTop_ ? top : bottom};
        const ThinLine line({toRight_ ? left : right, toTop_ ? bottom : top}, end);
        line.ForEachPixel(dc_.DrawableBox(),
                          [&](int32_t x, int32_t y, int64_t) { DrawAt(line.Flat(), x, y); });
        DrawAt(line.Flat(), end.x, end.y);
    }

private:
    // The cut through the shape at a pixel of the line: down or up where the line is flat, else
    // right or left.
    void DrawAt(bool flat, int32_t x, int32_t y) const {
        int32_t done = 0;
        for (const auto& ring : {look_.outer, look_.inner}) {
            if (ring) Fill(Cut(flat, x, y, done, 1), toTop_ ? ring->topLeft : ring->bottomRight);
            done += ring ? 1 : 0;
        }
        if (look_.middle) Fill(Cut(flat, x, y, done, INT32_MAX), *look_.middle);
    }

    // The part of the cut that begins `done` pixels from the line and has at most `length`.
    RECT Cut(bool flat, int32_t x, int32_t y, int32_t done, int32_t length) const {
        return flat ? RECT{x, From(toRight_, y, done, length), x + 1, To(toRight_, y, done, length)}
                    : RECT{From(toTop_, x, done, length), y, To(toTop_, x, done, length), y + 1};
    }

    static int32_t Clamped(int64_t value) {
        return static_cast<int32_t>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
    }
    static int32_t From(bool up, int64_t at, int64_t done, int64_t length) {
        return Clamped(up ? at + done : at + 1 - done - length);
    }
    static int32_t To(bool up, int64_t at, int64_t done, int64_t length) {
        return Clamped(up ? at + done + length : at + 1 - done);
    }

    void Fill(const RECT& cut, int color) const {
        FillArea(dc_, Intersection(cut, r_), PlainBrush(GetSysColor(color)));
    }

    const DeviceContext& dc_;
    const RECT r_;
    const EdgeLook& look_;
    const bool toTop_;
    const bool toRight_;
};

}  // namespace

void DrawDiagonal(const DeviceContext& dc, const RECT& r, const EdgeLook& look, UINT flags) {
    if (!IsEmpty(r)) Diagonal(dc, r, look, flags).Draw();
}

}  // namespace vxgui::gdi
