#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"

/// The visual styles of the desktop.
namespace vxgui::uxtheme {

constexpr int32_t S_OK = 0;
constexpr int32_t E_FAIL = static_cast<int32_t>(0x80004005);

/// The file, the colour scheme and the size of the visual style in force, as texts that end with
/// 0; lengths count units. Anything but `S_OK` where no such style is, with empty texts.
VXPLATFORM_API int32_t GetCurrentThemeName(char16_t* file, int fileLength, char16_t* colour,
                                           int colourLength, char16_t* size, int sizeLength);

}  // namespace vxgui::uxtheme
