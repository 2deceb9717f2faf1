#pragma once

#include <string>
#include <vector>

#include "vxgui/platform/core7.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui::tool {

struct SkinItem {
    String section;
    String name;     ///< for people: what the author calls it, else its section
    String caption;  ///< a text to show it with; empty for items that carry none
    Ref<ThemeItem> item;
};

/// A skin that a command works on: what it holds, and where that came from.
struct VXGUI_LOCAL Skin {
    std::string path;
    std::vector<SkinItem> items;
    Ref<core7::DefineFile> file;  ///< the theme set's define file or its notes, or the UIS file
    Ref<ThemeSet> set;            ///< of a theme set
    Ref<SkinDef> desktop;         ///< of a skin in the UIS dialect or a style of a module
};

/// What the commands say of their argument.
constexpr const char* kSkinHelp =
    "Define file of a theme set, compiled skin, UIS file of a skin, or res:MODULE:STYLE";

/// Loads a theme set, compiled or not, a skin in the UIS dialect with its taskbar, or a style of a
/// module, "res:MODULE:STYLE". What keeps it from being painted whole - a file that can't be read,
/// lines that make no sense, an image that is missing or broken, a list that is too short - is a
/// `ToolError` with a line for each, `file:line:column: error: text`.
Skin LoadSkin(const std::string& path);

/// A compiled skin that is in memory; a `ToolError` that says what is wrong with a damaged one.
Skin CompiledSkinOf(const ByteArray& bytes, const std::string& path);

/// An item by its section or by its name, without regard to case; a `ToolError` that lists the
/// names when there is none.
Ref<ThemeItem> FindItem(const Skin& skin, const std::string& name);

}  // namespace vxgui::tool
