#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"
#include "vxgui/platform/gdiplus/text/GlyphOutline.h"
#include "vxgui/platform/gdiplus/text/StringArguments.h"
#include "vxgui/platform/gdiplus_strings.h"

namespace vxgui::gdiplus {
namespace {

// Appends figures to a path.
class PathSink final : public FigureSink {
public:
    explicit PathSink(PathPoints& points) : points_(points) {}
    void Move(GpPointF to) override { points_.Add(to, PathPointTypeStart); }
    void Line(GpPointF to) override { points_.Add(to, PathPointTypeLine); }
    void Curve(GpPointF a, GpPointF b, GpPointF to) override {
        for (const GpPointF point : {a, b, to}) points_.Add(point, PathPointTypeBezier);
    }
    void Close() override { points_.types.back() |= PathPointTypeCloseSubpath; }

private:
    PathPoints& points_;
};

}  // namespace

extern "C" {

GpStatus GdipAddPathString(GpPath* path, const WCHAR* string, INT length,
                           const GpFontFamily* family, INT style, REAL emSize,
                           const GpRectF* layoutRect, const GpStringFormat* format) {
    return FlatOn<Path>(path, [&](Path& target) {
        const Ref<FontFamily> found = Find<FontFamily>(family);
        const auto arguments = ReadString(string, length, layoutRect, format);
        if (!found || !arguments || !(emSize > 0) || !std::isfinite(emSize))
            return InvalidParameter;
        if (!found->info.HasStyle(style)) return FontStyleNotFound;
        const GpRectF& rect = arguments->rect;
        const StringLayout& layout =
            FontEngine::Here()
                .Layouts()
                .Find(arguments->text, {found.get(), style, emSize, &arguments->Format(),
                                        GpSizeF{rect.Width, rect.Height}})
                .layout;
        PathSink sink(target.data);
        DrawFigures(layout, {1, 0, 0, 1, rect.X, rect.Y}, sink);
        target.newFigure = true;
        return Ok;
    });
}

GpStatus GdipAddPathStringI(GpPath* path, const WCHAR* string, INT length,
                            const GpFontFamily* family, INT style, REAL emSize,
                            const GpRect* layoutRect, const GpStringFormat* format) {
    if (!layoutRect) return InvalidParameter;
    const GpRectF rect{static_cast<REAL>(layoutRect->X), static_cast<REAL>(layoutRect->Y),
                       static_cast<REAL>(layoutRect->Width), static_cast<REAL>(layoutRect->Height)};
    return GdipAddPathString(path, string, length, family, style, emSize, &rect, format);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
