#pragma once

#include "vxgui/theme/lint/Page.h"
#include "vxgui/theme/lint/PictureShelf.h"

namespace vxgui::lint {

VXGUI_LOCAL bool IsThemeSet(const Page& page);
VXGUI_LOCAL bool IsUis(const Page& page);
/// A taskbar file that was given by itself.
VXGUI_LOCAL bool IsTaskbar(const Page& page);

VXGUI_LOCAL void CheckThemeSet(Page& page, PictureShelf& shelf);
/// The taskbar file comes back as a page of its own when there is one.
VXGUI_LOCAL void CheckUis(Page& page, PictureShelf& shelf, std::vector<Page>& more);
VXGUI_LOCAL void CheckTaskbarAlone(Page& page, PictureShelf& shelf);

/// A section's text style keys have no shadow to shape without a draw style.
VXGUI_LOCAL void CheckTextStyle(Page& page, const String& section);
/// The keys of a font, and of the style that it may carry.
VXGUI_LOCAL void CheckFont(Page& page, const String& section);

/// What a section's name ends in: "Font_07" is the stem "Font_" and the digits "07".
struct NumberedName {
    String stem;
    String digits;
    int32_t number = -1;  ///< -1 without digits, or with too many
};
VXGUI_LOCAL NumberedName SplitNumber(const String& section);

}  // namespace vxgui::lint
