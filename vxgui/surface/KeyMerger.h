#pragma once

#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/platform/gdi_merge.h"

namespace vxgui {

/// Copies the pixels whose colour isn't the key, by the helper's service.
class KeyMerger final : public gdi::WordMerger {
public:
    explicit KeyMerger(int32_t key) : key_(key) {}

    /// Binding may fail with a message: that is for one call, not for one a row.
    static bool IsBound() { return HlpMergeTransparent.IsBound(); }

    void Merge(const uint32_t* source, uint32_t* target, int32_t count) override {
        constexpr int32_t kBytesPerPixel = sizeof *source;
        HlpMergeTransparent(source, target, count * kBytesPerPixel, key_);
    }

private:
    const int32_t key_;
};

}  // namespace vxgui
