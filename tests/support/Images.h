#pragma once

#include <string>

#include "tests/support/Golden.h"

namespace vxgui::test {

/// The pixels that tests/data/images/FILE must decode to, from FILE.bgra beside it. Every
/// picture there is 13 x 11.
TestPicture ExpectedImage(const std::string& file);

/// The path of tests/data/images/FILE.
std::string ImagePath(const std::string& file);

}  // namespace vxgui::test
