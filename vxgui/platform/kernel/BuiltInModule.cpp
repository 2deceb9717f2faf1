#include "vxgui/platform/kernel/BuiltInModule.h"

#include <cstring>

#include "vxgui/platform/kernel/Folders.h"

namespace vxgui::kernel {

FARPROC BuiltInModule::Find(const char* name) const {
    const Export* entry = exports_;
    while (entry->address && std::strcmp(entry->name, name) != 0) ++entry;
    return entry->address;
}

FARPROC BuiltInModule::FindOrdinal(uint16_t ordinal) const {
    if (ordinal == 0) return nullptr;  // marks the exports that have none
    const Export* entry = exports_;
    while (entry->address && entry->ordinal != ordinal) ++entry;
    return entry->address;
}

std::string BuiltInModule::Path() const { return OwnPath(); }

}  // namespace vxgui::kernel
