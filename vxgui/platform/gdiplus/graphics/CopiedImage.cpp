#include "vxgui/platform/gdiplus/graphics/CopiedImage.h"

#include <algorithm>
#include <vector>

#include "vxgui/platform/gdiplus/graphics/BitmapWords.h"
#include "vxgui/platform/gdiplus/graphics/Blit.h"
#include "vxgui/platform/gdiplus/graphics/DrawnWords.h"
#include "vxgui/platform/gdiplus/words/WordBlends.h"

namespace vxgui::gdiplus {
namespace {

// Draws some rows after another, and asks before each time whether to go on.
template <class Draw>
GpStatus InSteps(const Graphics& graphics, const ImagePart& part, const GpRect& area, Draw draw) {
    const INT rows = RowsOfBand(area.Width);
    for (INT y = 0; y < area.Height; y += rows) {
        if (part.abort.Aborts()) return Aborted;
        const GpRect band{area.X, area.Y + y, area.Width, std::min(rows, area.Height - y)};
        DrawOnWords(graphics, band, draw);
    }
    return Ok;
}

}  // namespace

std::optional<GpStatus> DrawCopy(Graphics& graphics, const ImagePart& part,
                                 const ImageSource& source, const GpRect& area, GpPoint at) {
    const WordRows words = source.IsAdjusted() ? WordRows{} : WordsOf(part.bitmap);
    if (words) return Blit(graphics, words, area, at);
    if (!graphics.Target().Words()) return std::nullopt;
    if (!part.bitmap.Contains({area.X - at.X, area.Y - at.Y, area.Width, area.Height}))
        return std::nullopt;

    const bool replaces = graphics.Replaces();
    const WordRows straight =
        source.IsAdjusted() || replaces ? WordRows{} : WordsOf(part.bitmap, PixelFormat32bppARGB);
    if (straight) {
        return InSteps(graphics, part, area, [&](ARGB* to, INT x, INT y, size_t count) {
            DrawStraight(to, straight.At(x - at.X, y - at.Y), count);
        });
    }
    std::vector<ARGB> row(static_cast<size_t>(area.Width));
    return InSteps(graphics, part, area, [&](ARGB* to, INT x, INT y, size_t count) {
        const std::span<ARGB> read = replaces ? std::span(to, count) : std::span(row).first(count);
        source.Read(x - at.X, y - at.Y, read);
        if (!replaces) DrawWords(to, read.data(), count);
    });
}

}  // namespace vxgui::gdiplus
