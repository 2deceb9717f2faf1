#include "vxgui/platform/uxtheme.h"

namespace vxgui::uxtheme {

// The desktops that this platform has know no such styles.
int32_t GetCurrentThemeName(char16_t* file, int fileLength, char16_t* colour, int colourLength,
                            char16_t* size, int sizeLength) {
    if (file && fileLength > 0) *file = 0;
    if (colour && colourLength > 0) *colour = 0;
    if (size && sizeLength > 0) *size = 0;
    return E_FAIL;
}

}  // namespace vxgui::uxtheme
