#pragma once

#include "vxgui/gdip/GpEffectParams.h"
#include "vxgui/gdip/GpObject.h"

namespace vxgui {

/// An effect over the pixels of a bitmap. No operation writes `Status`.
class VXGUI_API GpEffect : public GpObject {
public:
    gdiplus::CGpEffect* Handle() const { return handle_; }
    /// Deletes the effect that is held and owns `value`.
    void Handle(gdiplus::CGpEffect* value);

    /// The new effect, which the object owns; null when there is none for `Effect`, and what is
    /// held stays.
    gdiplus::CGpEffect* Create(GpEffectType Effect);

    gdiplus::Status GetParameterSize(uint32_t& SIZE);
    /// `SIZE` is the room at `lpParams` before and the record's size behind.
    gdiplus::Status GetParameters(void* lpParams, uint32_t& SIZE);
    gdiplus::Status SetParameters(const void* lpParams, uint32_t SIZE);

protected:
    ~GpEffect() override { Handle(nullptr); }

private:
    gdiplus::CGpEffect* handle_ = nullptr;
};

}  // namespace vxgui
