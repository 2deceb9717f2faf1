#pragma once

#include <mutex>
#include <unordered_map>

#include "vxgui/platform/gdi/PixelSource.h"

namespace vxgui::test {

/// Pixel memory with a page that can't be touched right behind it, or right in front of it: a stray
/// access stops the test where it happens. Blocks aren't used again, so neither does what was given
/// back stay in reach.
class GuardedPixels : public gdi::PixelSource {
public:
    enum class Guard { Behind, InFront };

    explicit GuardedPixels(Guard guard) : guard_(guard) {}

    uint8_t* Take(size_t size, bool cleared) override;
    void GiveBack(uint8_t* bits) override;
    bool IsReusable() const override { return false; }

    /// Puts one in place when the environment's VXGUI_TEST_GUARD says "behind" or "front".
    static void ObeyEnvironment();

private:
    struct Mapping {
        void* start;
        size_t size;
    };

    const Guard guard_;
    std::mutex mutex_;
    std::unordered_map<uint8_t*, Mapping> mappings_;
};

}  // namespace vxgui::test
