#include "vxgui/platform/gdiplus/graphics/ImageCall.h"
#include "vxgui/platform/gdiplus_drawing.h"

namespace vxgui::gdiplus {
namespace {

// The size that so many pixels of a bitmap have on the page: that of the picture on paper.
GpSizeF PageSize(const Graphics& graphics, const Bitmap& bitmap, REAL width, REAL height) {
    const DrawingTarget& target = graphics.Target();
    const Unit unit = graphics.state.pageUnit;
    return {width * target.DpiX() / bitmap.dpiX / PixelsPer(unit, target.DpiX()),
            height * target.DpiY() / bitmap.dpiY / PixelsPer(unit, target.DpiY())};
}

}  // namespace

extern "C" {

GpStatus GdipDrawImage(GpGraphics* graphics, GpImage* image, REAL x, REAL y) {
    return WithImage(graphics, image, [&](Graphics& found, Bitmap& bitmap) {
        const GpRectF whole = WholeOf(bitmap);
        const GpSizeF size = PageSize(found, bitmap, whole.Width, whole.Height);
        return DrawPart(found, {bitmap, whole, nullptr, {}},
                        CornersOf({x, y, size.Width, size.Height}).points);
    });
}

GpStatus GdipDrawImageI(GpGraphics* graphics, GpImage* image, INT x, INT y) {
    return GdipDrawImage(graphics, image, static_cast<REAL>(x), static_cast<REAL>(y));
}

GpStatus GdipDrawImageRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y, REAL width,
                           REAL height) {
    return WithImage(graphics, image, [&](Graphics& found, Bitmap& bitmap) {
        return DrawPart(found, {bitmap, WholeOf(bitmap), nullptr, {}},
                        CornersOf({x, y, width, height}).points);
    });
}

GpStatus GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT x, INT y, INT width,
                            INT height) {
    const GpRectF r = ToFloat(GpRect{x, y, width, height});
    return GdipDrawImageRect(graphics, image, r.X, r.Y, r.Width, r.Height);
}

GpStatus GdipDrawImagePoints(GpGraphics* graphics, GpImage* image, const GpPointF* dstpoints,
                             INT count) {
    if (!dstpoints || count < 3) return InvalidParameter;
    if (count > 3) return NotImplemented;  // a fourth corner would not be a parallelogram's
    return WithImage(graphics, image, [&](Graphics& found, Bitmap& bitmap) {
        return DrawPart(found, {bitmap, WholeOf(bitmap), nullptr, {}}, dstpoints);
    });
}

GpStatus GdipDrawImagePointsI(GpGraphics* graphics, GpImage* image, const GpPoint* dstpoints,
                              INT count) {
    return Flat([&] {
        return GdipDrawImagePoints(graphics, image, ToFloats(dstpoints, count).data(), count);
    });
}

GpStatus GdipDrawImagePointRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y, REAL srcx,
                                REAL srcy, REAL srcwidth, REAL srcheight, Unit srcUnit) {
    if (!IsSourceUnit(srcUnit)) return InvalidParameter;
    return WithImage(graphics, image, [&](Graphics& found, Bitmap& bitmap) {
        const GpRectF part = InPixels({srcx, srcy, srcwidth, srcheight}, srcUnit, bitmap);
        const GpSizeF size = PageSize(found, bitmap, part.Width, part.Height);
        return DrawPart(found, {bitmap, part, nullptr, {}},
                        CornersOf({x, y, size.Width, size.Height}).points);
    });
}

GpStatus GdipDrawImagePointRectI(GpGraphics* graphics, GpImage* image, INT x, INT y, INT srcx,
                                 INT srcy, INT srcwidth, INT srcheight, Unit srcUnit) {
    const GpRectF part = ToFloat(GpRect{srcx, srcy, srcwidth, srcheight});
    return GdipDrawImagePointRect(graphics, image, static_cast<REAL>(x), static_cast<REAL>(y),
                                  part.X, part.Y, part.Width, part.Height, srcUnit);
}

GpStatus GdipDrawImagePointsRect(GpGraphics* graphics, GpImage* image, const GpPointF* points,
                                 INT count, REAL srcx, REAL srcy, REAL srcwidth, REAL srcheight,
                                 Unit srcUnit, const GpImageAttributes* imageAttributes,
                                 DrawImageAbort callback, void* callbackData) {
    if (!points || count < 3 || !IsSourceUnit(srcUnit)) return InvalidParameter;
    if (count > 3) return NotImplemented;
    return WithImage(graphics, image, [&](Graphics& found, Bitmap& bitmap) {
        return WithOptional<ImageAttributes>(imageAttributes, [&](const ImageAttributes*
                                                                      attributes) {
            const GpRectF part = InPixels({srcx, srcy, srcwidth, srcheight}, srcUnit, bitmap);
            return DrawPart(found, {bitmap, part, attributes, {callback, callbackData}}, points);
        });
    });
}

GpStatus GdipDrawImagePointsRectI(GpGraphics* graphics, GpImage* image, const GpPoint* points,
                                  INT count, INT srcx, INT srcy, INT srcwidth, INT srcheight,
                                  Unit srcUnit, const GpImageAttributes* imageAttributes,
                                  DrawImageAbort callback, void* callbackData) {
    return Flat([&] {
        const GpRectF part = ToFloat(GpRect{srcx, srcy, srcwidth, srcheight});
        return GdipDrawImagePointsRect(graphics, image, ToFloats(points, count).data(), count,
                                       part.X, part.Y, part.Width, part.Height, srcUnit,
                                       imageAttributes, callback, callbackData);
    });
}

GpStatus GdipDrawImageRectRect(GpGraphics* graphics, GpImage* image, REAL dstx, REAL dsty,
                               REAL dstwidth, REAL dstheight, REAL srcx, REAL srcy, REAL srcwidth,
                               REAL srcheight, Unit srcUnit,
                               const GpImageAttributes* imageAttributes, DrawImageAbort callback,
                               void* callbackData) {
    return GdipDrawImagePointsRect(
        graphics, image, CornersOf({dstx, dsty, dstwidth, dstheight}).points, 3, srcx, srcy,
        srcwidth, srcheight, srcUnit, imageAttributes, callback, callbackData);
}

GpStatus GdipDrawImageRectRectI(GpGraphics* graphics, GpImage* image, INT dstx, INT dsty,
                                INT dstwidth, INT dstheight, INT srcx, INT srcy, INT srcwidth,
                                INT srcheight, Unit srcUnit,
                                const GpImageAttributes* imageAttributes, DrawImageAbort callback,
                                void* callbackData) {
    const GpRectF dst = ToFloat(GpRect{dstx, dsty, dstwidth, dstheight});
    const GpRectF src = ToFloat(GpRect{srcx, srcy, srcwidth, srcheight});
    return GdipDrawImageRectRect(graphics, image, dst.X, dst.Y, dst.Width, dst.Height, src.X, src.Y,
                                 src.Width, src.Height, srcUnit, imageAttributes, callback,
                                 callbackData);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
