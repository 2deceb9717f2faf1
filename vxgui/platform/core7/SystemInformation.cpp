#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7/SystemCodes.h"

namespace vxgui::core7 {
namespace {

class TableSystemInformation final : public SystemInformation {
public:
    // The library's own blits are the ones whose result is defined to the bit.
    bool PrefersSystemAlphaBlend() override { return false; }

    String ErrorText(uint32_t code) override {
        const String text = SystemCodeText(code);
        return text.empty() ? "Unknown system error " + String::FromInt(code) : text;
    }
};

}  // namespace

Ref<SystemInformation> CreateSystemInformation() { return New<TableSystemInformation>(); }

}  // namespace vxgui::core7
