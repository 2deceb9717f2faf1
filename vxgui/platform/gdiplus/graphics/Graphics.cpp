#include "vxgui/platform/gdiplus/Graphics.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/Units.h"

namespace vxgui::gdiplus {
namespace {

void Narrow(GpRect& area, const gdi::PixelRegion* clip) {
    if (clip) area = Common(area, FromRECT(clip->Bounds()));
}

bool IsBox(const gdi::PixelRegion* clip) { return !clip || clip->Kind() == gdi::SIMPLEREGION; }

}  // namespace

Affine Graphics::PageToDevice() const {
    const REAL x = PixelsPer(state.pageUnit, target_->DpiX()) * state.pageScale;
    const REAL y = PixelsPer(state.pageUnit, target_->DpiY()) * state.pageScale;
    return Affine{x, 0, 0, y, 0, 0} * state.container;
}

Affine Graphics::WorldToDevice() const { return state.world * PageToDevice(); }

GpRect Graphics::DeviceBox(const GpRectF& world) const {
    const GpRect box = PixelsAround(BoxOf(world, WorldToDevice()));
    return {box.X - 1, box.Y - 1, box.Width + 2, box.Height + 2};
}

GpRect Graphics::Drawable(const GpRect& device) const {
    GpRect area = Common(device, {0, 0, target_->Width(), target_->Height()});
    Narrow(area, target_->Clip());
    Narrow(area, state.clip.Pixels());
    Narrow(area, state.outerClip.Pixels());
    return area;
}

double Graphics::ShapeOffset() const {
    const bool half = state.pixelOffsetMode == PixelOffsetModeHalf ||
                      state.pixelOffsetMode == PixelOffsetModeHighQuality;
    return half ? 0 : 0.5;
}

bool Graphics::Antialiases() const {
    return state.smoothingMode == SmoothingModeHighQuality ||
           state.smoothingMode >= SmoothingModeAntiAlias;
}

bool Graphics::ClipsToBox() const {
    return IsBox(target_->Clip()) && IsBox(state.clip.Pixels()) && IsBox(state.outerClip.Pixels());
}

GpStatus Graphics::Ready() const { return lentDc ? ObjectBusy : target_->Ready(); }

UINT Graphics::Save() {
    saved_.push_back({++lastId_, state});
    return lastId_;
}

bool Graphics::Restore(UINT id) {
    const auto at =
        std::find_if(saved_.begin(), saved_.end(), [id](const Saved& s) { return s.id == id; });
    if (at == saved_.end()) return false;
    state = std::move(at->state);
    saved_.erase(at, saved_.end());
    return true;
}

}  // namespace vxgui::gdiplus
