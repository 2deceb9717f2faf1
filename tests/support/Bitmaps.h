#pragma once

#include "tests/support/Golden.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui::test {

/// The pixels of a 32-bit or 24-bit DIB section, with 0 for the alpha that 24 bits don't have;
/// empty for anything else.
TestPicture PictureOf(gdi::HBITMAP bitmap);

}  // namespace vxgui::test
