#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Brushes of pictures.
namespace vxgui::gdiplus {

extern "C" {

/// A brush that repeats a bitmap or a part of it. It keeps a copy. A part that doesn't lie in the
/// bitmap gives `OutOfMemory`, a locked bitmap `ObjectBusy`. Attributes adjust the copy by what is
/// set for brushes, else for bitmaps, and give the wrap mode; a null is none.
VXPLATFORM_API GpStatus GdipCreateTexture(GpImage* image, WrapMode wrapmode, GpBrush** texture);
VXPLATFORM_API GpStatus GdipCreateTexture2(GpImage* image, WrapMode wrapmode, REAL x, REAL y,
                                           REAL width, REAL height, GpBrush** texture);
VXPLATFORM_API GpStatus GdipCreateTexture2I(GpImage* image, WrapMode wrapmode, INT x, INT y,
                                            INT width, INT height, GpBrush** texture);
VXPLATFORM_API GpStatus GdipCreateTextureIA(GpImage* image,
                                            const GpImageAttributes* imageAttributes, REAL x,
                                            REAL y, REAL width, REAL height, GpBrush** texture);
VXPLATFORM_API GpStatus GdipCreateTextureIAI(GpImage* image,
                                             const GpImageAttributes* imageAttributes, INT x, INT y,
                                             INT width, INT height, GpBrush** texture);
/// The copy as a new bitmap.
VXPLATFORM_API GpStatus GdipGetTextureImage(GpBrush* brush, GpImage** image);

VXPLATFORM_API GpStatus GdipGetTextureWrapMode(GpBrush* brush, WrapMode* wrapmode);
VXPLATFORM_API GpStatus GdipSetTextureWrapMode(GpBrush* brush, WrapMode wrapmode);
VXPLATFORM_API GpStatus GdipGetTextureTransform(GpBrush* brush, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipSetTextureTransform(GpBrush* brush, const GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipResetTextureTransform(GpBrush* brush);
VXPLATFORM_API GpStatus GdipMultiplyTextureTransform(GpBrush* brush, const GpMatrix* matrix,
                                                     MatrixOrder order);
VXPLATFORM_API GpStatus GdipTranslateTextureTransform(GpBrush* brush, REAL dx, REAL dy,
                                                      MatrixOrder order);
VXPLATFORM_API GpStatus GdipScaleTextureTransform(GpBrush* brush, REAL sx, REAL sy,
                                                  MatrixOrder order);
VXPLATFORM_API GpStatus GdipRotateTextureTransform(GpBrush* brush, REAL angle, MatrixOrder order);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_TEXTURE(X)    \
    X(GdipCreateTexture)            \
    X(GdipCreateTexture2)           \
    X(GdipCreateTexture2I)          \
    X(GdipCreateTextureIA)          \
    X(GdipCreateTextureIAI)         \
    X(GdipGetTextureImage)          \
    X(GdipGetTextureTransform)      \
    X(GdipGetTextureWrapMode)       \
    X(GdipMultiplyTextureTransform) \
    X(GdipResetTextureTransform)    \
    X(GdipRotateTextureTransform)   \
    X(GdipScaleTextureTransform)    \
    X(GdipSetTextureTransform)      \
    X(GdipSetTextureWrapMode)       \
    X(GdipTranslateTextureTransform)
