#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/attributes/AttributesCall.h"
#include "vxgui/platform/gdiplus_attributes.h"

namespace vxgui::gdiplus {
namespace {

ByteTable GammaTable(REAL gamma) {
    return MakeByteTable([&](int i) { return 255 * std::pow(i / 255.0, gamma); });
}

ByteTable ThresholdTable(REAL threshold) {
    return MakeByteTable([&](int i) { return static_cast<REAL>(i) > threshold * 255 ? 255 : 0; });
}

bool InOrder(ARGB low, ARGB high) {
    for (int shift = 0; shift < 24; shift += 8) {
        if ((low >> shift & 255) > (high >> shift & 255)) return false;
    }
    return true;
}

bool AreMatrices(const ColorMatrix* color, const ColorMatrix* gray, ColorMatrixFlags flags) {
    return color && flags >= ColorMatrixFlagsDefault && flags <= ColorMatrixFlagsAltGray &&
           (gray || flags != ColorMatrixFlagsAltGray);
}

std::vector<ColorMap> SortedMap(const ColorMap* map, UINT size) {
    std::vector<ColorMap> sorted(map, map + size);
    std::ranges::stable_sort(sorted, {}, &ColorMap::oldColor);
    const auto same = [](const ColorMap& a, const ColorMap& b) { return a.oldColor == b.oldColor; };
    sorted.erase(std::unique(sorted.begin(), sorted.end(), same), sorted.end());
    return sorted;
}

}  // namespace

extern "C" {

GpStatus GdipSetImageAttributesColorMatrix(GpImageAttributes* imageattr, ColorAdjustType type,
                                           BOOL enableFlag, const ColorMatrix* colorMatrix,
                                           const ColorMatrix* grayMatrix, ColorMatrixFlags flags) {
    return SetStep(
        imageattr, type, enableFlag, AreMatrices(colorMatrix, grayMatrix, flags),
        [&](ColorAdjustment& own) {
            own.matrices = {*colorMatrix, grayMatrix ? *grayMatrix : *colorMatrix, flags};
        },
        [](ColorAdjustment& own) { own.matrices.reset(); });
}

GpStatus GdipSetImageAttributesThreshold(GpImageAttributes* imageattr, ColorAdjustType type,
                                         BOOL enableFlag, REAL threshold) {
    return SetStep(
        imageattr, type, enableFlag, std::isfinite(threshold),
        [&](ColorAdjustment& own) { own.threshold = ThresholdTable(threshold); },
        [](ColorAdjustment& own) { own.threshold.reset(); });
}

GpStatus GdipSetImageAttributesGamma(GpImageAttributes* imageattr, ColorAdjustType type,
                                     BOOL enableFlag, REAL gamma) {
    return SetStep(
        imageattr, type, enableFlag, std::isfinite(gamma) && gamma > 0,
        [&](ColorAdjustment& own) { own.gamma = GammaTable(gamma); },
        [](ColorAdjustment& own) { own.gamma.reset(); });
}

GpStatus GdipSetImageAttributesNoOp(GpImageAttributes* imageattr, ColorAdjustType type,
                                    BOOL enableFlag) {
    return SetStep(
        imageattr, type, enableFlag, true, [](ColorAdjustment& own) { own.noOp = true; },
        [](ColorAdjustment& own) { own.noOp = false; });
}

GpStatus GdipSetImageAttributesColorKeys(GpImageAttributes* imageattr, ColorAdjustType type,
                                         BOOL enableFlag, ARGB colorLow, ARGB colorHigh) {
    return SetStep(
        imageattr, type, enableFlag, InOrder(colorLow, colorHigh),
        [&](ColorAdjustment& own) {
            own.keys = {colorLow, colorHigh};
        },
        [](ColorAdjustment& own) { own.keys.reset(); });
}

GpStatus GdipSetImageAttributesOutputChannel(GpImageAttributes* imageattr, ColorAdjustType type,
                                             BOOL enableFlag, ColorChannelFlags channelFlags) {
    return SetStep(
        imageattr, type, enableFlag,
        channelFlags >= ColorChannelFlagsC && channelFlags < ColorChannelFlagsLast,
        [&](ColorAdjustment& own) { own.outputChannel = channelFlags; },
        [](ColorAdjustment& own) { own.outputChannel.reset(); });
}

GpStatus GdipSetImageAttributesOutputChannelColorProfile(GpImageAttributes* imageattr,
                                                         ColorAdjustType type, BOOL enableFlag,
                                                         const WCHAR* colorProfileFilename) {
    return SetStep(
        imageattr, type, enableFlag, colorProfileFilename,
        [&](ColorAdjustment& own) { own.outputProfile = String(colorProfileFilename); },
        [](ColorAdjustment& own) { own.outputProfile.reset(); });
}

GpStatus GdipSetImageAttributesRemapTable(GpImageAttributes* imageattr, ColorAdjustType type,
                                          BOOL enableFlag, UINT mapSize, const ColorMap* map) {
    return SetStep(
        imageattr, type, enableFlag, map && mapSize > 0,
        [&](ColorAdjustment& own) { own.remap = SortedMap(map, mapSize); },
        [](ColorAdjustment& own) { own.remap.clear(); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
