#pragma once

#include "tools/view/recolour/SkinOriginal.h"
#include "vxgui/base/Variant.h"

namespace vxgui::view {

/// A compiled skin: its pictures and styles lie in the one file.
class CompiledOriginal final : public SkinOriginal {
public:
    /// A `ToolError` when the file can't be read.
    explicit CompiledOriginal(const std::string& path);

    std::string Write(const std::string& folder, const Recolour& how, Extent extent) const override;

private:
    std::string name_;
    ByteArray bytes_;
};

}  // namespace vxgui::view
