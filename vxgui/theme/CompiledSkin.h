#pragma once

#include "vxgui/theme/ThemeSet.h"

namespace vxgui {

/// A theme set as it is kept in one file, pictures included, so that a host ships that file with
/// nothing beside it. docs/formats.md says how it is laid out.
struct CompiledSkin {
    Ref<ThemeSet> set;
    /// The text of a define file with what the library doesn't read and people and tools do, such
    /// as the key "Name" of an item; may be empty.
    String notes;
};

/// Raises an error, and takes no memory to speak of, for a file that can't be read, that is no
/// compiled skin or one of a later form, or that is damaged; its source is the path.
VXGUI_API CompiledSkin LoadCompiledSkin(const String& path);
/// Raises when the file can't be written.
VXGUI_API void SaveCompiledSkin(const CompiledSkin& skin, const String& path);

/// The same for a file in memory. Pictures of the same content are stored once, and shared when
/// they are read; what is empty or never set is not stored. `State` and the owner of an item, and
/// the numbers that refer to the owner, are not kept.
VXGUI_API CompiledSkin CompiledSkinFrom(const ByteArray& file);
/// What it raises has `path`, where the bytes are from, as its source.
VXGUI_LOCAL CompiledSkin CompiledSkinFrom(const ByteArray& file, const String& path);
VXGUI_API ByteArray BytesOfCompiledSkin(const CompiledSkin& skin);

/// Whether the first bytes are those of a compiled skin, of whatever version.
VXGUI_API bool IsCompiledSkin(const ByteArray& file);
/// False for a file that can't be read.
VXGUI_API bool IsCompiledSkinFile(const String& path);

}  // namespace vxgui
