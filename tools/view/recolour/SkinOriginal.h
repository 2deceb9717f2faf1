#pragma once

#include <memory>
#include <string>

#include "tools/view/recolour/Recolour.h"

namespace vxgui::view {

/// A skin as it stands in its files, from which it is written in other colours any number of
/// times.
class SkinOriginal {
public:
    enum class Extent {
        Items,  ///< what items are painted with; no wallpapers
        Whole,
    };

    virtual ~SkinOriginal() = default;

    /// Writes the skin into a folder and answers the path of what to load there. A `ToolError`
    /// when that fails.
    virtual std::string Write(const std::string& folder, const Recolour& how,
                              Extent extent) const = 0;
};

/// Reads a skin of any kind. A style of a module is written as a skin in the UIS dialect. A
/// `ToolError` when it can't be read.
std::unique_ptr<SkinOriginal> OriginalOf(const std::string& path);

}  // namespace vxgui::view
