#include "vxgui/base/OutOfMemory.h"
#include "vxgui/pixels/Resample.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

Ref<cAlphaDIBSection> cAlphaDIBSection::Resample(int32_t lNewHeight, int32_t lNewWidth) try {
    Ref<cAlphaDIBSection> result = New<cAlphaDIBSection>();
    if (!result->Create(lNewWidth, lNewHeight)) return nullptr;
    if (lNewWidth == Width() && lNewHeight == Height()) {
        result->LoadPictureBlt(hDC_);
    } else {
        ResampleBilinear(result);
    }
    return result;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.Resample");
}

bool cAlphaDIBSection::ResampleBilinear(const Ref<cAlphaDIBSection>& dst) {
    const std::span<ARGB> source = Pixels(), target = dst->Pixels();
    if (source.empty() || target.empty()) return false;
    vxgui::ResampleBilinear(source, Width(), target, dst->Width());
    return true;
}

}  // namespace vxgui
