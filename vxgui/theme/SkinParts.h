#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace vxgui {

/// A part of the taskbar and start menu that skins paint.
struct SkinPart {
    const char* name;
    const char* image;   ///< the picture of a section that names none; may be empty
    bool inUis = false;  ///< its section stands in the UIS file, not in the taskbar's
};

/// All of them, in the order in which they are read.
std::span<const SkinPart> SkinParts();
/// The part of that very name; one without a picture, in the taskbar's file, for any other name.
SkinPart SkinPartOf(std::string_view name);
/// The part of that name without regard to case; none for any other name.
std::optional<SkinPart> FindSkinPart(std::u16string_view name);

}  // namespace vxgui
