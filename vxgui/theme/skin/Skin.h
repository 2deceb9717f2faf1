#pragma once

#include <vector>

#include "vxgui/platform/core7.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/ThemeSet.h"
#include "vxgui/theme/skin/SkinError.h"

namespace vxgui {

struct SkinItem {
    String section;
    String name;     ///< for people: what the author calls it, else its section
    String caption;  ///< a text to show it with; empty for items that carry none
    Ref<ThemeItem> item;
    bool ofDesktop = false;  ///< a part of the taskbar or start menu, not one of a host's controls
};

/// A skin of any kind that the library reads: what it holds, and where that came from.
struct VXGUI_LOCAL Skin {
    String path;
    std::vector<SkinItem> items;
    Ref<core7::DefineFile> file;  ///< the theme set's define file or its notes, or the UIS file
    Ref<ThemeSet> set;            ///< of a theme set
    Ref<SkinDef> desktop;         ///< of a skin in the UIS dialect or a style of a module
};

/// Loads a theme set, compiled or not, a skin in the UIS dialect with its taskbar, or a style of a
/// module, "res:MODULE:STYLE". What keeps it from being painted whole - a file that can't be read,
/// lines that make no sense, an image that is missing or broken, a list that is too short - raises
/// a `SkinError`.
VXGUI_API Skin LoadSkin(const String& path);

/// A compiled skin that is in memory; a damaged one raises a `SkinError`. `path` is for messages.
VXGUI_API Skin SkinOfCompiled(const ByteArray& bytes, const String& path);

/// An item by its section or by its name, without regard to case. When there is none, raises a
/// `SkinError` that lists the names.
VXGUI_API Ref<ThemeItem> FindItem(const Skin& skin, const String& name);

}  // namespace vxgui
