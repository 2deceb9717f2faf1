#include <algorithm>

#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/LineBrush.h"
#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {
namespace {

// The caller's lists as stops; what they begin with isn't looked at.
template <class T>
Stops<T> StopsOf(const T* values, const REAL* places, INT count) {
    return {{values, values + count}, {places, places + count}};
}

// Copies stops to the caller, who says how many fit.
template <class T>
GpStatus CopyStops(const Stops<T>& stops, T* values, REAL* places, INT count) {
    if (stops.values.empty()) return WrongState;
    if (static_cast<size_t>(count) < stops.values.size()) return InsufficientBuffer;
    std::ranges::copy(stops.values, values);
    std::ranges::copy(stops.places, places);
    return Ok;
}

template <class T, class Value>
GpStatus GetStops(const GpBrush* brush, Stops<Value> Blend::*stops, Value* values, REAL* places,
                  INT count) {
    if (!values || !places || count < 1) return InvalidParameter;
    return FlatOn<T>(
        brush, [&](T& found) { return CopyStops(found.blend.*stops, values, places, count); });
}

template <class T, class Value>
GpStatus CountStops(const GpBrush* brush, Stops<Value> Blend::*stops, INT* count) {
    return FlatGet<T>(brush, count, [&](T& found) {
        return static_cast<INT>((found.blend.*stops).values.size());
    });
}

// A single factor stands for an even blend and has no place to speak of.
template <class T>
GpStatus SetBlend(GpBrush* brush, const REAL* factors, const REAL* places, INT count) {
    if (!factors || !places || count < 1) return InvalidParameter;
    const Stops<REAL> stops = StopsOf(factors, places, count);
    if (count > 1 && !ArePlaces(stops.places)) return InvalidParameter;
    return FlatSet<T>(brush, [&](T& found) {
        found.blend.factors = stops;
        found.blend.presets = {};
    });
}

template <class T>
GpStatus SetPresets(GpBrush* brush, const ARGB* colors, const REAL* places, INT count) {
    if (!colors || !places || count < 2) return InvalidParameter;
    const Stops<ARGB> stops = StopsOf(colors, places, count);
    if (!ArePlaces(stops.places)) return InvalidParameter;
    return FlatSet<T>(brush, [&](T& found) { found.blend.presets = stops; });
}

// `shape` is one of the two shapes with a focus and a scale, both from 0 to 1.
template <class T>
GpStatus SetShape(GpBrush* brush, void (Blend::*shape)(REAL, REAL), REAL focus, REAL scale) {
    if (!(focus >= 0 && focus <= 1 && scale >= 0 && scale <= 1)) return InvalidParameter;
    return FlatSet<T>(brush, [&](T& found) { (found.blend.*shape)(focus, scale); });
}

template <class T>
GpStatus SetGamma(GpBrush* brush, BOOL on) {
    return FlatSet<T>(brush, [&](T& found) { found.blend.gammaCorrection = on != 0; });
}

template <class T>
GpStatus GetGamma(const GpBrush* brush, BOOL* on) {
    return FlatGet<T>(brush, on, [](T& found) { return found.blend.gammaCorrection; });
}

}  // namespace

extern "C" {

/// The functions that both kinds of gradients have, for the kind of that name.
#define VXGUI_GRADIENT(Name, T)                                                                    \
    GpStatus GdipGet##Name##Rect(GpBrush* brush, GpRectF* rect) {                                  \
        return FlatGet<T>(brush, rect, [](T& found) { return found.Rect(); });                     \
    }                                                                                              \
    GpStatus GdipGet##Name##RectI(GpBrush* brush, GpRect* rect) {                                  \
        return FlatGet<T>(brush, rect, [](T& found) { return RoundRect(found.Rect()); });          \
    }                                                                                              \
    GpStatus GdipSet##Name##GammaCorrection(GpBrush* brush, BOOL useGammaCorrection) {             \
        return SetGamma<T>(brush, useGammaCorrection);                                             \
    }                                                                                              \
    GpStatus GdipGet##Name##GammaCorrection(GpBrush* brush, BOOL* useGammaCorrection) {            \
        return GetGamma<T>(brush, useGammaCorrection);                                             \
    }                                                                                              \
    GpStatus GdipGet##Name##BlendCount(GpBrush* brush, INT* count) {                               \
        return CountStops<T>(brush, &Blend::factors, count);                                       \
    }                                                                                              \
    GpStatus GdipGet##Name##Blend(GpBrush* brush, REAL* blend, REAL* positions, INT count) {       \
        return GetStops<T>(brush, &Blend::factors, blend, positions, count);                       \
    }                                                                                              \
    GpStatus GdipSet##Name##Blend(GpBrush* brush, const REAL* blend, const REAL* positions,        \
                                  INT count) {                                                     \
        return SetBlend<T>(brush, blend, positions, count);                                        \
    }                                                                                              \
    GpStatus GdipGet##Name##PresetBlendCount(GpBrush* brush, INT* count) {                         \
        return CountStops<T>(brush, &Blend::presets, count);                                       \
    }                                                                                              \
    GpStatus GdipGet##Name##PresetBlend(GpBrush* brush, ARGB* blend, REAL* positions, INT count) { \
        return GetStops<T>(brush, &Blend::presets, blend, positions, count);                       \
    }                                                                                              \
    GpStatus GdipSet##Name##PresetBlend(GpBrush* brush, const ARGB* blend, const REAL* positions,  \
                                        INT count) {                                               \
        return SetPresets<T>(brush, blend, positions, count);                                      \
    }                                                                                              \
    GpStatus GdipSet##Name##SigmaBlend(GpBrush* brush, REAL focus, REAL scale) {                   \
        return SetShape<T>(brush, &Blend::Bell, focus, scale);                                     \
    }                                                                                              \
    GpStatus GdipSet##Name##LinearBlend(GpBrush* brush, REAL focus, REAL scale) {                  \
        return SetShape<T>(brush, &Blend::Triangle, focus, scale);                                 \
    }

VXGUI_GRADIENT(Line, LineBrush)
VXGUI_GRADIENT(PathGradient, PathBrush)

}  // extern "C"

}  // namespace vxgui::gdiplus
