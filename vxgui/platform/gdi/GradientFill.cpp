#include <algorithm>

#include "vxgui/platform/gdi/GradientRamp.h"
#include "vxgui/platform/gdi/GradientTriangle.h"
#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/Spans.h"

namespace vxgui::gdi {
namespace {

// Writes colours in the target's form; the alpha byte becomes 0, as in any fill.
class ColorWriter {
public:
    explicit ColorWriter(const PixelTarget& target) : target_(target), matcher_(target) {}

    uint32_t Word(uint32_t color) { return matcher_.Word(color); }
    void Store(int32_t x, int32_t y, int32_t count, const uint32_t* words) const {
        StoreRow(target_, x, y, count, words);
    }

private:
    const PixelTarget target_;
    ColorMatcher matcher_;
};

// Each column has one colour, found once for all rows of a part.
void FillAcross(const DeviceContext& dc, const RECT& rect, const GradientRamp& ramp) {
    ColorWriter writer(dc.Target());
    ForEachClipRect(dc, rect, [&](const RECT& part) {
        uint32_t words[kSpan];
        for (int32_t x = part.left; x < part.right; x += kSpan) {
            const int32_t count = std::min(kSpan, part.right - x);
            for (int32_t i = 0; i < count; ++i) {
                words[i] = writer.Word(ramp.Color(int64_t{x} + i - rect.left));
            }
            for (int32_t y = part.top; y < part.bottom; ++y) writer.Store(x, y, count, words);
        }
    });
}

void FillDown(const DeviceContext& dc, const RECT& rect, const GradientRamp& ramp) {
    ColorWriter writer(dc.Target());
    ForEachSpan(dc, rect, [&](int32_t x, int32_t y, int32_t count) {
        uint32_t words[kSpan];
        std::fill_n(words, count, writer.Word(ramp.Color(int64_t{y} - rect.top)));
        writer.Store(x, y, count, words);
    });
}

void FillRectangle(const DeviceContext& dc, const TRIVERTEX& a, const TRIVERTEX& b, bool across) {
    const RECT rect = {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                       std::max(a.y, b.y)};
    if (across) {
        const bool inOrder = a.x < b.x;
        const GradientRamp ramp(inOrder ? a : b, inOrder ? b : a, int64_t{rect.right} - rect.left);
        FillAcross(dc, rect, ramp);
    } else {
        const bool inOrder = a.y < b.y;
        const GradientRamp ramp(inOrder ? a : b, inOrder ? b : a, int64_t{rect.bottom} - rect.top);
        FillDown(dc, rect, ramp);
    }
}

void FillTriangle(const DeviceContext& dc, const GradientTriangle& triangle) {
    ColorWriter writer(dc.Target());
    ForEachSpan(dc, triangle.Bounds(), [&](int32_t x, int32_t y, int32_t count) {
        const GradientTriangle::Run run = triangle.Row(y);
        const int32_t left = std::max(x, run.left);
        const int32_t right = std::min(x + count, run.right);
        uint32_t words[kSpan];
        for (int32_t at = left; at < right; ++at) {
            words[at - left] = writer.Word(triangle.Color(at, y));
        }
        if (left < right) writer.Store(left, y, right - left, words);
    });
}

// The vertices by number.
class Vertices {
public:
    Vertices(const TRIVERTEX* vertices, DWORD count) : vertices_(vertices), count_(count) {}

    bool Has(const GRADIENT_RECT& rect) const {
        return rect.UpperLeft < count_ && rect.LowerRight < count_;
    }
    bool Has(const GRADIENT_TRIANGLE& triangle) const {
        return Near(triangle.Vertex1) && Near(triangle.Vertex2) && Near(triangle.Vertex3);
    }
    const TRIVERTEX& operator[](DWORD index) const { return vertices_[index]; }

private:
    bool Near(DWORD index) const {
        return index < count_ && WithinReach(vertices_[index].x) && WithinReach(vertices_[index].y);
    }
    static bool WithinReach(LONG at) { return at >= -kFarthestVertex && at <= kFarthestVertex; }

    const TRIVERTEX* vertices_;
    DWORD count_;
};

// Paints all elements of the mesh, or none if one of them names a vertex that isn't there.
template <class Element, class Paint>
BOOL PaintMesh(const Vertices& vertices, const void* mesh, DWORD count, Paint&& paint) {
    const auto* elements = static_cast<const Element*>(mesh);
    const auto there = [&](const Element& element) { return vertices.Has(element); };
    if (!std::all_of(elements, elements + count, there)) return 0;
    std::for_each(elements, elements + count, paint);
    return 1;
}

}  // namespace

BOOL GradientFill(HDC handle, const TRIVERTEX* vertexList, DWORD vertexCount, const void* mesh,
                  DWORD meshCount, DWORD mode) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    if (!dc || !vertexList || !mesh || mode > GRADIENT_FILL_TRIANGLE) return 0;
    const Vertices vertices(vertexList, vertexCount);
    if (mode == GRADIENT_FILL_TRIANGLE) {
        return PaintMesh<GRADIENT_TRIANGLE>(
            vertices, mesh, meshCount, [&](const GRADIENT_TRIANGLE& t) {
                FillTriangle(*dc, {vertices[t.Vertex1], vertices[t.Vertex2], vertices[t.Vertex3]});
            });
    }
    return PaintMesh<GRADIENT_RECT>(vertices, mesh, meshCount, [&](const GRADIENT_RECT& r) {
        FillRectangle(*dc, vertices[r.UpperLeft], vertices[r.LowerRight],
                      mode == GRADIENT_FILL_RECT_H);
    });
}

}  // namespace vxgui::gdi
