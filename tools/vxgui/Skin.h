#pragma once

#include <string>

#include "vxgui/platform/core7.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui::tool {

/// A skin that a command works on: the set, and the file it came from.
struct Skin {
    std::string path;
    Ref<core7::DefineFile> file;
    Ref<ThemeSet> set;

    /// The name that the author gave to an item with the key "Name", else its section.
    String NameOf(const String& section) const;
};

/// Loads a theme set. What keeps it from being painted whole - a file that can't be read, lines
/// that make no sense, an image that is missing or broken, a list that is too short - is a
/// `ToolError` with a line for each, `file:line:column: error: text`.
Skin LoadSkin(const std::string& path);

/// An item by its section or by its name, without regard to case; a `ToolError` that lists the
/// names when there is none.
Ref<ThemeItem> FindItem(const Skin& skin, const std::string& name);

}  // namespace vxgui::tool
