#pragma once

#include <map>
#include <set>
#include <vector>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui::lint {

/// What a check needs to know of a picture.
struct PictureFacts {
    bool exists = false;
    bool outside = false;  ///< of the skin's folder; such a file isn't looked into
    int32_t width = 0;     ///< 0 for what can't be read
    int32_t height = 0;
    std::string file;  ///< its path as the operating system has it
};

/// Pictures that were looked at, each decoded once, and which of them a skin uses.
class VXGUI_LOCAL PictureShelf {
public:
    /// Looks at a picture that a skin names; an absolute path may stand for itself.
    const PictureFacts& Use(const String& folder, const String& name, bool absolute);
    /// Counts a picture as used without a look at it.
    void Mark(const String& folder, const String& name);
    /// Forgets what is used; what was seen of the pictures stays.
    void BeginSkin() { used_.clear(); }
    /// The pictures beside the used ones and in `folder` itself that aren't used, in order.
    std::vector<std::string> UnusedIn(const String& folder) const;

private:
    std::map<std::pair<String, String>, PictureFacts> seen_;  // by folder and path
    std::set<std::string> used_;
};

}  // namespace vxgui::lint
