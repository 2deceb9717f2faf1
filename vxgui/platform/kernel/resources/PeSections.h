#pragma once

#include "vxgui/platform/kernel/resources/ByteSpan.h"

namespace vxgui::kernel {

/// Finds addresses of a portable executable, PE32 or PE32+, in the bytes of its file.
class PeSections {
public:
    explicit PeSections(ByteSpan file);

    /// The file's bytes from an address on, to the end of its section; empty outside.
    ByteSpan At(uint32_t address) const;
    /// The resources, from their root directory on; empty when there are none.
    ByteSpan Resources() const { return resources_ == 0 ? ByteSpan() : At(resources_); }

private:
    ByteSpan file_;
    ByteSpan headers_;  // of the sections
    uint32_t resources_ = 0;
};

}  // namespace vxgui::kernel
