#pragma once

#include <atomic>

#include "vxgui/platform/kernel/Module.h"

namespace vxgui::kernel {

/// A module that is part of this library, known by a table of its exports.
class BuiltInModule : public Module {
public:
    explicit BuiltInModule(const Export* exports) : exports_(exports) {}

    void Exports(const Export* exports) { exports_ = exports; }
    FARPROC Find(const char* name) const override;
    FARPROC FindOrdinal(uint16_t ordinal) const override;
    std::string Path() const override;

private:
    std::atomic<const Export*> exports_;  ///< ends with a null address
};

}  // namespace vxgui::kernel
