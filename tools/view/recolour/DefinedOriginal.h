#pragma once

#include <map>
#include <set>

#include "tools/view/SkinDefines.h"
#include "tools/view/recolour/SkinOriginal.h"
#include "tools/view/recolour/SkinPicture.h"

namespace vxgui::view {

/// A skin of define files and pictures.
class VXGUI_LOCAL DefinedOriginal final : public SkinOriginal {
public:
    explicit DefinedOriginal(const std::string& path);

    std::string Write(const std::string& folder, const Recolour& how, Extent extent) const override;

private:
    struct Picture {
        std::string name;  ///< in the folder that is written
        bool isWallpaper;  ///< and nothing else
        SkinPicture content;
    };

    void ReadPictures();
    KeyColours KeysOf(const std::string& path) const;
    int32_t BackgroundOf(const PictureUse& use) const;
    std::string FreeName(const std::string& path);
    void WriteDefine(size_t index, const std::string& path, const Recolour& how) const;

    SkinDefines skin_;
    std::vector<std::string> defineNames_;
    std::vector<String> texts_;  ///< of the define files; the files may change meanwhile
    std::set<std::string> taken_;
    std::map<std::string, Picture> pictures_;  ///< by the path that each was read from
};

}  // namespace vxgui::view
