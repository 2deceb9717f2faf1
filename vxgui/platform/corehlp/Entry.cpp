#include "vxgui/platform/corehlp/Entry.h"

#include <atomic>

#include "vxgui/platform/corehlp.h"
#include "vxgui/platform/corehlp/Modules.h"
#include "vxgui/platform/corehlp/Services.h"
#include "vxgui/platform/memory.h"

namespace vxgui::corehlp {

namespace {

using Place = std::atomic<void*>;

/// No function lies so low; what is below is the number of a built-in service.
constexpr intptr_t kLowestAddress = 0x10000;

void* TargetOf(intptr_t target) {
    switch (target) {
        case 0:
            return reinterpret_cast<void*>(&VxCoreHlpEntry);
        case 1:
            return reinterpret_cast<void*>(&GetServiceAddress);
        case 2:
            return reinterpret_cast<void*>(&BindStub);
        case 5:
            return reinterpret_cast<void*>(&BindStubFast);
        default:
            return target >= kLowestAddress ? reinterpret_cast<void*>(target) : nullptr;
    }
}

bool IsPlace(intptr_t slot) {
    return slot % static_cast<intptr_t>(alignof(Place)) == 0 &&
           !kernel::IsBadWritePtr(reinterpret_cast<void*>(slot), sizeof(Place));
}

intptr_t Query(intptr_t slot, intptr_t query, intptr_t number) {
    if (slot != 0) return 0;
    if (query == 1) return GetServiceAddress(number);
    return query == 0 && number == 0 ? intptr_t{kMajorVersion << 16 | kBuild} : 0;
}

}  // namespace

extern "C" intptr_t VxCoreHlpEntry(intptr_t command, intptr_t slot, intptr_t target,
                                   intptr_t reserved) {
    if (command == 0) return Query(slot, target, reserved);
    return command == 2 ? BindStub(slot, target, reserved) : 0;
}

intptr_t GetServiceAddress(intptr_t number) {
    return reinterpret_cast<intptr_t>(ServiceAddress(number));
}

intptr_t BindStub(intptr_t slot, intptr_t target, intptr_t zero) {
    return IsPlace(slot) ? BindStubFast(slot, target, zero) : 0;
}

intptr_t BindStubFast(intptr_t slot, intptr_t target, intptr_t) {
    void* const address = TargetOf(target);
    if (!slot || !address) return 0;
    // Threads that bind one stub at once store the same target; each sees it whole.
    reinterpret_cast<Place*>(slot)->store(address, std::memory_order_release);
    return 1;
}

const kernel::Export kCoreHlpExports[] = {
    {"VxCoreHlpEntry", 1, reinterpret_cast<kernel::FARPROC>(&VxCoreHlpEntry)},
    {nullptr, 0, nullptr},
};

}  // namespace vxgui::corehlp
