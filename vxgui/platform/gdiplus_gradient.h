#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Brushes along a line and from the edge of a path to its centre.
namespace vxgui::gdiplus {

extern "C" {

/// A gradient along a line. A wrap mode that clamps gives `InvalidParameter`, two equal points give
/// `OutOfMemory`. A scalable angle turns in a square that is then stretched to the rectangle, and
/// so do the modes' diagonals.
VXPLATFORM_API GpStatus GdipCreateLineBrush(const GpPointF* point1, const GpPointF* point2,
                                            ARGB color1, ARGB color2, WrapMode wrapMode,
                                            GpBrush** lineGradient);
VXPLATFORM_API GpStatus GdipCreateLineBrushI(const GpPoint* point1, const GpPoint* point2,
                                             ARGB color1, ARGB color2, WrapMode wrapMode,
                                             GpBrush** lineGradient);
VXPLATFORM_API GpStatus GdipCreateLineBrushFromRect(const GpRectF* rect, ARGB color1, ARGB color2,
                                                    LinearGradientMode mode, WrapMode wrapMode,
                                                    GpBrush** lineGradient);
VXPLATFORM_API GpStatus GdipCreateLineBrushFromRectI(const GpRect* rect, ARGB color1, ARGB color2,
                                                     LinearGradientMode mode, WrapMode wrapMode,
                                                     GpBrush** lineGradient);
VXPLATFORM_API GpStatus GdipCreateLineBrushFromRectWithAngle(const GpRectF* rect, ARGB color1,
                                                             ARGB color2, REAL angle,
                                                             BOOL isAngleScalable,
                                                             WrapMode wrapMode,
                                                             GpBrush** lineGradient);
VXPLATFORM_API GpStatus GdipCreateLineBrushFromRectWithAngleI(const GpRect* rect, ARGB color1,
                                                              ARGB color2, REAL angle,
                                                              BOOL isAngleScalable,
                                                              WrapMode wrapMode,
                                                              GpBrush** lineGradient);

/// The two colours; the rectangle is the one given or the box of the two points.
VXPLATFORM_API GpStatus GdipSetLineColors(GpBrush* brush, ARGB color1, ARGB color2);
VXPLATFORM_API GpStatus GdipGetLineColors(GpBrush* brush, ARGB* colors);
VXPLATFORM_API GpStatus GdipGetLineRect(GpBrush* brush, GpRectF* rect);
VXPLATFORM_API GpStatus GdipGetLineRectI(GpBrush* brush, GpRect* rect);

/// Blends: factors are the second colour's share. Positions go from 0 to 1 and don't fall; one
/// single factor means an even blend. Preset colours replace the two colours and end with the next
/// blend that is set. Lists that are shorter than what they are to hold give `InsufficientBuffer`,
/// presets that there aren't give `WrongState`. The two shapes reach `scale` at `focus`.
VXPLATFORM_API GpStatus GdipSetLineGammaCorrection(GpBrush* brush, BOOL useGammaCorrection);
VXPLATFORM_API GpStatus GdipGetLineGammaCorrection(GpBrush* brush, BOOL* useGammaCorrection);
VXPLATFORM_API GpStatus GdipGetLineBlendCount(GpBrush* brush, INT* count);
VXPLATFORM_API GpStatus GdipGetLineBlend(GpBrush* brush, REAL* blend, REAL* positions, INT count);
VXPLATFORM_API GpStatus GdipSetLineBlend(GpBrush* brush, const REAL* blend, const REAL* positions,
                                         INT count);
VXPLATFORM_API GpStatus GdipGetLinePresetBlendCount(GpBrush* brush, INT* count);
VXPLATFORM_API GpStatus GdipGetLinePresetBlend(GpBrush* brush, ARGB* blend, REAL* positions,
                                               INT count);
VXPLATFORM_API GpStatus GdipSetLinePresetBlend(GpBrush* brush, const ARGB* blend,
                                               const REAL* positions, INT count);
VXPLATFORM_API GpStatus GdipSetLineSigmaBlend(GpBrush* brush, REAL focus, REAL scale);
VXPLATFORM_API GpStatus GdipSetLineLinearBlend(GpBrush* brush, REAL focus, REAL scale);

/// The wrap mode, and the transform from the brush's coordinates to the world.
VXPLATFORM_API GpStatus GdipGetLineWrapMode(GpBrush* brush, WrapMode* wrapmode);
VXPLATFORM_API GpStatus GdipSetLineWrapMode(GpBrush* brush, WrapMode wrapmode);
VXPLATFORM_API GpStatus GdipGetLineTransform(GpBrush* brush, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipSetLineTransform(GpBrush* brush, const GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipResetLineTransform(GpBrush* brush);
VXPLATFORM_API GpStatus GdipMultiplyLineTransform(GpBrush* brush, const GpMatrix* matrix,
                                                  MatrixOrder order);
VXPLATFORM_API GpStatus GdipTranslateLineTransform(GpBrush* brush, REAL dx, REAL dy,
                                                   MatrixOrder order);
VXPLATFORM_API GpStatus GdipScaleLineTransform(GpBrush* brush, REAL sx, REAL sy, MatrixOrder order);
VXPLATFORM_API GpStatus GdipRotateLineTransform(GpBrush* brush, REAL angle, MatrixOrder order);

/// A gradient from the edge of a path to its centre, which is the centroid at first. Fewer than two
/// points give `OutOfMemory`.
VXPLATFORM_API GpStatus GdipCreatePathGradient(const GpPointF* points, INT count, WrapMode wrapMode,
                                               GpBrush** polyGradient);
VXPLATFORM_API GpStatus GdipCreatePathGradientI(const GpPoint* points, INT count, WrapMode wrapMode,
                                                GpBrush** polyGradient);
VXPLATFORM_API GpStatus GdipCreatePathGradientFromPath(const GpPath* path, GpBrush** polyGradient);

/// Colours of the edge belong to the points of the path, the last one to all that follow. The focus
/// scales make the inner part, which has the centre's colour.
VXPLATFORM_API GpStatus GdipGetPathGradientCenterColor(GpBrush* brush, ARGB* color);
VXPLATFORM_API GpStatus GdipSetPathGradientCenterColor(GpBrush* brush, ARGB color);
VXPLATFORM_API GpStatus GdipGetPathGradientSurroundColorsWithCount(GpBrush* brush, ARGB* color,
                                                                   INT* count);
VXPLATFORM_API GpStatus GdipSetPathGradientSurroundColorsWithCount(GpBrush* brush,
                                                                   const ARGB* color, INT* count);
VXPLATFORM_API GpStatus GdipGetPathGradientSurroundColorCount(GpBrush* brush, INT* count);
VXPLATFORM_API GpStatus GdipGetPathGradientPointCount(GpBrush* brush, INT* count);
VXPLATFORM_API GpStatus GdipGetPathGradientPath(GpBrush* brush, GpPath* path);
VXPLATFORM_API GpStatus GdipSetPathGradientPath(GpBrush* brush, const GpPath* path);
VXPLATFORM_API GpStatus GdipGetPathGradientCenterPoint(GpBrush* brush, GpPointF* point);
VXPLATFORM_API GpStatus GdipGetPathGradientCenterPointI(GpBrush* brush, GpPoint* point);
VXPLATFORM_API GpStatus GdipSetPathGradientCenterPoint(GpBrush* brush, const GpPointF* point);
VXPLATFORM_API GpStatus GdipSetPathGradientCenterPointI(GpBrush* brush, const GpPoint* point);
VXPLATFORM_API GpStatus GdipGetPathGradientRect(GpBrush* brush, GpRectF* rect);
VXPLATFORM_API GpStatus GdipGetPathGradientRectI(GpBrush* brush, GpRect* rect);
VXPLATFORM_API GpStatus GdipGetPathGradientFocusScales(GpBrush* brush, REAL* xScale, REAL* yScale);
VXPLATFORM_API GpStatus GdipSetPathGradientFocusScales(GpBrush* brush, REAL xScale, REAL yScale);

/// As those of line gradients; position 0 is the edge, 1 the centre.
VXPLATFORM_API GpStatus GdipSetPathGradientGammaCorrection(GpBrush* brush, BOOL useGammaCorrection);
VXPLATFORM_API GpStatus GdipGetPathGradientGammaCorrection(GpBrush* brush,
                                                           BOOL* useGammaCorrection);
VXPLATFORM_API GpStatus GdipGetPathGradientBlendCount(GpBrush* brush, INT* count);
VXPLATFORM_API GpStatus GdipGetPathGradientBlend(GpBrush* brush, REAL* blend, REAL* positions,
                                                 INT count);
VXPLATFORM_API GpStatus GdipSetPathGradientBlend(GpBrush* brush, const REAL* blend,
                                                 const REAL* positions, INT count);
VXPLATFORM_API GpStatus GdipGetPathGradientPresetBlendCount(GpBrush* brush, INT* count);
VXPLATFORM_API GpStatus GdipGetPathGradientPresetBlend(GpBrush* brush, ARGB* blend, REAL* positions,
                                                       INT count);
VXPLATFORM_API GpStatus GdipSetPathGradientPresetBlend(GpBrush* brush, const ARGB* blend,
                                                       const REAL* positions, INT count);
VXPLATFORM_API GpStatus GdipSetPathGradientSigmaBlend(GpBrush* brush, REAL focus, REAL scale);
VXPLATFORM_API GpStatus GdipSetPathGradientLinearBlend(GpBrush* brush, REAL focus, REAL scale);

VXPLATFORM_API GpStatus GdipGetPathGradientWrapMode(GpBrush* brush, WrapMode* wrapmode);
VXPLATFORM_API GpStatus GdipSetPathGradientWrapMode(GpBrush* brush, WrapMode wrapmode);
VXPLATFORM_API GpStatus GdipGetPathGradientTransform(GpBrush* brush, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipSetPathGradientTransform(GpBrush* brush, const GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipResetPathGradientTransform(GpBrush* brush);
VXPLATFORM_API GpStatus GdipMultiplyPathGradientTransform(GpBrush* brush, const GpMatrix* matrix,
                                                          MatrixOrder order);
VXPLATFORM_API GpStatus GdipTranslatePathGradientTransform(GpBrush* brush, REAL dx, REAL dy,
                                                           MatrixOrder order);
VXPLATFORM_API GpStatus GdipScalePathGradientTransform(GpBrush* brush, REAL sx, REAL sy,
                                                       MatrixOrder order);
VXPLATFORM_API GpStatus GdipRotatePathGradientTransform(GpBrush* brush, REAL angle,
                                                        MatrixOrder order);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_GRADIENT(X)                 \
    X(GdipCreateLineBrush)                        \
    X(GdipCreateLineBrushFromRect)                \
    X(GdipCreateLineBrushFromRectI)               \
    X(GdipCreateLineBrushFromRectWithAngle)       \
    X(GdipCreateLineBrushFromRectWithAngleI)      \
    X(GdipCreateLineBrushI)                       \
    X(GdipCreatePathGradient)                     \
    X(GdipCreatePathGradientFromPath)             \
    X(GdipCreatePathGradientI)                    \
    X(GdipGetLineBlend)                           \
    X(GdipGetLineBlendCount)                      \
    X(GdipGetLineColors)                          \
    X(GdipGetLineGammaCorrection)                 \
    X(GdipGetLinePresetBlend)                     \
    X(GdipGetLinePresetBlendCount)                \
    X(GdipGetLineRect)                            \
    X(GdipGetLineRectI)                           \
    X(GdipGetLineTransform)                       \
    X(GdipGetLineWrapMode)                        \
    X(GdipGetPathGradientBlend)                   \
    X(GdipGetPathGradientBlendCount)              \
    X(GdipGetPathGradientCenterColor)             \
    X(GdipGetPathGradientCenterPoint)             \
    X(GdipGetPathGradientCenterPointI)            \
    X(GdipGetPathGradientFocusScales)             \
    X(GdipGetPathGradientGammaCorrection)         \
    X(GdipGetPathGradientPath)                    \
    X(GdipGetPathGradientPointCount)              \
    X(GdipGetPathGradientPresetBlend)             \
    X(GdipGetPathGradientPresetBlendCount)        \
    X(GdipGetPathGradientRect)                    \
    X(GdipGetPathGradientRectI)                   \
    X(GdipGetPathGradientSurroundColorCount)      \
    X(GdipGetPathGradientSurroundColorsWithCount) \
    X(GdipGetPathGradientTransform)               \
    X(GdipGetPathGradientWrapMode)                \
    X(GdipMultiplyLineTransform)                  \
    X(GdipMultiplyPathGradientTransform)          \
    X(GdipResetLineTransform)                     \
    X(GdipResetPathGradientTransform)             \
    X(GdipRotateLineTransform)                    \
    X(GdipRotatePathGradientTransform)            \
    X(GdipScaleLineTransform)                     \
    X(GdipScalePathGradientTransform)             \
    X(GdipSetLineBlend)                           \
    X(GdipSetLineColors)                          \
    X(GdipSetLineGammaCorrection)                 \
    X(GdipSetLineLinearBlend)                     \
    X(GdipSetLinePresetBlend)                     \
    X(GdipSetLineSigmaBlend)                      \
    X(GdipSetLineTransform)                       \
    X(GdipSetLineWrapMode)                        \
    X(GdipSetPathGradientBlend)                   \
    X(GdipSetPathGradientCenterColor)             \
    X(GdipSetPathGradientCenterPoint)             \
    X(GdipSetPathGradientCenterPointI)            \
    X(GdipSetPathGradientFocusScales)             \
    X(GdipSetPathGradientGammaCorrection)         \
    X(GdipSetPathGradientLinearBlend)             \
    X(GdipSetPathGradientPath)                    \
    X(GdipSetPathGradientPresetBlend)             \
    X(GdipSetPathGradientSigmaBlend)              \
    X(GdipSetPathGradientSurroundColorsWithCount) \
    X(GdipSetPathGradientTransform)               \
    X(GdipSetPathGradientWrapMode)                \
    X(GdipTranslateLineTransform)                 \
    X(GdipTranslatePathGradientTransform)
