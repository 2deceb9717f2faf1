#pragma once

#include <string>
#include <vector>

#include "vxgui/platform/core7.h"

namespace vxgui::view {

/// A define file and the picture names in it.
struct DefineText {
    std::string path;  ///< as the operating system has it
    Ref<core7::DefineFile> file;
};

/// Where a skin names a picture.
struct PictureUse {
    enum class Kind { Image, Glyph, Wallpaper };

    Kind kind;
    size_t define;  ///< in which of the files
    String section;
    String key;        ///< empty for a part that has its picture without naming it
    std::string path;  ///< of the picture, as the operating system has it
};

/// The define file of a theme set, or both of a skin in the UIS dialect, and all pictures that they
/// stand on, whether they are there or not.
class VXGUI_LOCAL SkinDefines {
public:
    /// A file that can't be read has no sections.
    explicit SkinDefines(const String& path);

    /// The skin's own folder, in which all pictures are looked for.
    const String& Folder() const { return folder_; }
    const std::vector<DefineText>& Defines() const { return defines_; }
    const std::vector<PictureUse>& Pictures() const { return pictures_; }

private:
    void Open(const String& path);
    void AddTaskbar();
    void AddPictures(size_t define);
    void AddPicture(PictureUse::Kind kind, size_t define, const String& section, const String& key,
                    const String& name);

    const String folder_;
    std::vector<DefineText> defines_;
    std::vector<PictureUse> pictures_;
};

}  // namespace vxgui::view
