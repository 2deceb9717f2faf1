#pragma once

#include <pango/pango.h>

#include <optional>
#include <string>

namespace vxgui::gdi {

/// Where a font that Pango chose comes from.
struct FaceFile {
    std::string path;
    int index = 0;        ///< of the face in the file
    bool upright = true;  ///< has no slant of its own
    bool regular = true;  ///< has no bold of its own
};

/// None for a font without a file.
std::optional<FaceFile> FileOf(PangoFont* font);

}  // namespace vxgui::gdi
