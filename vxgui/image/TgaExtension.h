#pragma once

#include "vxgui/image/modTGA.h"

namespace vxgui {

/// Sets the attributes type to 3, keeps the block's last 26 bytes and, where they are recognised
/// as a footer, reads the extension area. They never are.
void LookUpTgaFooter(TgaRecord& record);

/// Finds the extension area by the record's footer bytes and takes the attributes type from it.
/// Answers 2 for an area within the header, 3 for one that doesn't end before the footer.
int32_t ReadTgaExtension(TgaRecord& record);

}  // namespace vxgui
