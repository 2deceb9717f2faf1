#pragma once

namespace vxgui::tool {

// The files of this folder that a page is made of, as they are: the build turns them into text.
extern const char kGalleryPage[];    ///< a Mustache template
extern const char kGalleryStyle[];   ///< CSS
extern const char kGalleryScript[];  ///< JavaScript

}  // namespace vxgui::tool
