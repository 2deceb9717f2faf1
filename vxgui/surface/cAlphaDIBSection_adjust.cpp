#include <algorithm>

#include "vxgui/base/Error.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/colour/IColorAdjust.h"
#include "vxgui/platform/forms.h"
#include "vxgui/surface/HlsAdjustment.h"
#include "vxgui/surface/PixelRectangle.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

struct cAlphaDIBSection::Snapshot {
    int32_t width, height;
    std::vector<ARGB> pixels;

    /// The rows as far as they are there.
    ARGBArray Array() {
        return {pixels.data(), static_cast<int32_t>(pixels.size() / static_cast<size_t>(width)),
                width};
    }
};

void cAlphaDIBSection::BeginAdjustColor() try {
    const std::span<const ARGB> pixels = Pixels();
    if (pixels.empty()) return;
    snapshot_ =
        std::make_shared<Snapshot>(Snapshot{Width(), Height(), {pixels.begin(), pixels.end()}});
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.BeginAdjustColor");
}

void cAlphaDIBSection::CommitAdjustColor() { snapshot_ = nullptr; }

void cAlphaDIBSection::ResetAdjustColor() {
    if (!snapshot_) return;
    const std::span<ARGB> pixels = Pixels();
    const size_t count = std::min(pixels.size(), snapshot_->pixels.size());
    std::copy_n(snapshot_->pixels.begin(), count, pixels.begin());
}

void cAlphaDIBSection::RollbackAdjustColor() {
    ResetAdjustColor();
    CommitAdjustColor();
}

void cAlphaDIBSection::RaisePreview(int32_t xEnd, int32_t y, bool& cancel) const {
    PreviewAdjust.Raise(xEnd / 4 + 1, y, cancel);
}

void cAlphaDIBSection::AdjustColor(const Ref<IColorAdjust>& ColorAdjust, int32_t xStart,
                                   int32_t yStart, int32_t xEnd, int32_t yEnd) try {
    const KeepAlive alive(this);
    const auto snapshot = snapshot_;
    if (!snapshot || GetARGBArray().Rows() == 0) return;
    const Ref<IColorAdjust> transform = ColorAdjust;
    if (!transform) throw Error(ErrorNumber::ObjectNotSet, "cAlphaDIBSection", "Object not set");
    const PixelRectangle area(Width(), Height(), xStart, yStart, xEnd, yEnd);
    const ARGBArray sources = snapshot->Array();
    std::vector<ARGB> line;
    for (int32_t row = area.lowRow; row <= area.highRow; ++row) {
        // The transform is a host's, and may do anything to the surface meanwhile: it works on a
        // copy of the row.
        const auto source = sources.Run(row, area.left, area.right);
        const auto target = GetARGBArray().Run(row, area.left, area.right);
        if (source.size() != target.size()) break;
        line.assign(target.begin(), target.end());
        for (size_t x = 0; x < line.size(); ++x) transform->TransColor(source[x], line[x]);
        const auto result = GetARGBArray().Run(row, area.left, area.right);
        std::copy_n(line.begin(), std::min(line.size(), result.size()), result.begin());
    }
    bool ignored = false;
    RaisePreview(area.right, area.lowRow + 1, ignored);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.AdjustColor");
}

void cAlphaDIBSection::AdjustHLS(float hue, float Luminance, float Saturation, bool Colourize,
                                 int32_t bRaiseEvent, int32_t xStart, int32_t yStart, int32_t xEnd,
                                 int32_t yEnd) {
    const KeepAlive alive(this);
    if (GetARGBArray().Rows() == 0) return;
    const PixelRectangle area(Width(), Height(), xStart, yStart, xEnd, yEnd);
    const HlsAdjustment adjustment(hue, Luminance, Saturation, Colourize);
    bool cancel = false;
    for (int32_t row = area.highRow; row >= area.lowRow && !cancel; --row) {
        // Listeners may have given the surface other pixels.
        adjustment.Apply(GetARGBArray().Run(row, area.left, area.right));
        if (bRaiseEvent != 2) continue;
        forms::PumpEvents();  // so that a host's windows stay alive meanwhile
        RaisePreview(area.right, row + 1, cancel);
    }
    if (bRaiseEvent == 1) RaisePreview(area.right, area.lowRow + 1, cancel);
}

}  // namespace vxgui
