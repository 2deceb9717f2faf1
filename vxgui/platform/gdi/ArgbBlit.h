#pragma once

#include "vxgui/platform/gdi/BlitReader.h"
#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/Spans.h"
#include "vxgui/platform/gdi/WordRuns.h"

namespace vxgui::gdi {

/// Passes source and target pixels as words 0xAARRGGBB, whatever their forms, to
/// `mix(source, destination, count)`, which changes the destination words that are then stored.
/// `geometry` is cut to the target and the source. False when memory runs out.
template <class Mix>
bool ArgbBlit(const DeviceContext& dc, const PixelTarget& source, const MonoColors& mono,
              BlitGeometry geometry, Mix&& mix) {
    geometry.CutToTarget(dc);
    geometry.CutToSource(source);
    if (geometry.Empty()) return true;
    const PixelTarget target = dc.Target();
    BlitReader reader(source, geometry);
    if (!reader.Prepare(target)) return false;
    if (source.depth == 32 && target.depth == 32) {
        return ForEachWordRun(dc, reader, geometry.Area(), mix);
    }
    PixelTarget argb;
    argb.depth = 32;
    PixelConverter fromSource(source, argb, mono);
    PixelConverter fromTarget(target, argb, mono);
    PixelConverter toTarget(argb, target, mono);
    ForEachSpan(dc, geometry.Area(), [&](int32_t x, int32_t y, int32_t count) {
        uint32_t sources[kSpan];
        uint32_t destinations[kSpan];
        reader.Read(x, y, count, sources);
        fromSource.Convert(sources, count);
        LoadRow(target, x, y, count, destinations);
        fromTarget.Convert(destinations, count);
        mix(sources, destinations, count);
        toTarget.Convert(destinations, count);
        StoreRow(target, x, y, count, destinations);
    });
    return true;
}

}  // namespace vxgui::gdi
