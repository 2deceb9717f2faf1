#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

class ModuleResourceService final : public ResourceService {
public:
    ByteArray ReadResource(kernel::HMODULE module, const String& type,
                           const String& name) override {
        const kernel::ResourceBlock block = kernel::FindModuleResource(module, type, name);
        return ByteArray(block.data, block.data + block.size);
    }

    bool IsEmptyArray(const ByteArray& bytes) override { return bytes.empty(); }
};

}  // namespace

ResourceService& TheResourceService() {
    thread_local const Ref<ModuleResourceService> service = New<ModuleResourceService>();
    return *service;
}

}  // namespace vxgui::core7
