#include <optional>
#include <string_view>

#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"
#include "vxgui/platform/gdiplus/text/FontPlace.h"
#include "vxgui/platform/gdiplus/text/StringArguments.h"
#include "vxgui/platform/gdiplus/text/StringPainter.h"
#include "vxgui/platform/gdiplus_strings.h"

namespace vxgui::gdiplus {
namespace {

// The layout of a string on a graphics.
KeptLayout& LayoutOn(const Graphics& graphics, const Font& font, const StringArguments& string) {
    const GpSizeF room{string.rect.Width, string.rect.Height};
    return FontEngine::Here().Layouts().Find(
        string.text,
        {font.family.get(), font.style, EmInWorld(font, graphics), &string.Format(), room});
}

}  // namespace

extern "C" {

GpStatus GdipDrawString(GpGraphics* graphics, const WCHAR* string, INT length, const GpFont* font,
                        const GpRectF* layoutRect, const GpStringFormat* stringFormat,
                        const GpBrush* brush) {
    return DrawWith<Brush>(graphics, brush, [&](Graphics& target, Brush& paint) -> GpStatus {
        const Ref<Font> found = Find<Font>(font);
        const auto arguments = ReadString(string, length, layoutRect, stringFormat);
        if (!found || !arguments) return InvalidParameter;
        if (arguments->text.empty()) return Ok;
        KeptLayout& layout = LayoutOn(target, *found, *arguments);
        const GpStatus status =
            PaintString(target, layout, arguments->rect, arguments->Format(), paint);
        FontEngine::Here().Layouts().Weigh(layout);
        return status;
    });
}

GpStatus GdipMeasureString(GpGraphics* graphics, const WCHAR* string, INT length,
                           const GpFont* font, const GpRectF* layoutRect,
                           const GpStringFormat* stringFormat, GpRectF* boundingBox,
                           INT* codepointsFitted, INT* linesFilled) {
    return DrawWith<Font>(graphics, font, [&](Graphics& target, Font& found) {
        const auto arguments = ReadString(string, length, layoutRect, stringFormat);
        if (!arguments || !boundingBox) return InvalidParameter;
        const StringLayout& layout = LayoutOn(target, found, *arguments).layout;
        const GpRectF& b = layout.bounds;
        *boundingBox = {arguments->rect.X + b.X, arguments->rect.Y + b.Y, b.Width, b.Height};
        if (codepointsFitted) *codepointsFitted = layout.units;
        if (linesFilled) *linesFilled = layout.lines;
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
