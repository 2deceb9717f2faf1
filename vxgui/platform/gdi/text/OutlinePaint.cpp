#include "vxgui/platform/gdi/text/OutlinePaint.h"

namespace vxgui::gdi {
namespace {

/// FreeType counts rows upwards: row r of its picture is row `bottom - 1 - r` of the target.
struct SpanTarget {
    CoveragePaint& paint;
    int32_t left;
    int32_t bottom;
    bool mono;
};

void PaintSpans(int y, int count, const FT_Span* spans, void* user) {
    const auto& target = *static_cast<const SpanTarget*>(user);
    for (int i = 0; i < count; ++i) {
        uint8_t coverage = spans[i].coverage;
        if (target.mono) coverage = coverage >= 128 ? 255 : 0;
        if (coverage == 0) continue;
        target.paint.Row(target.left + spans[i].x, target.bottom - 1 - y, spans[i].len, coverage);
    }
}

}  // namespace

void PaintOutline(FT_Library library, FT_Outline& outline, int64_t x, int64_t y, const RECT& clip,
                  bool mono, CoveragePaint& paint) {
    const FT_Pos right = (x - clip.left) * 64;
    const FT_Pos up = (clip.bottom - y) * 64;
    FT_Outline_Translate(&outline, right, up);
    SpanTarget target{paint, clip.left, clip.bottom, mono};
    FT_Raster_Params params{};
    params.flags = FT_RASTER_FLAG_AA | FT_RASTER_FLAG_DIRECT | FT_RASTER_FLAG_CLIP;
    params.gray_spans = PaintSpans;
    params.user = &target;
    params.clip_box = {0, 0, clip.right - clip.left, clip.bottom - clip.top};
    FT_Outline_Render(library, &outline, &params);
    FT_Outline_Translate(&outline, -right, -up);
}

}  // namespace vxgui::gdi
