#pragma once

#include <string>

namespace vxgui::qt6 {

/// Whether windows can be shown by an application that isn't there yet: asking Qt itself would
/// end the process where no display answers.
bool DisplayAnswers(std::string* reason);

}  // namespace vxgui::qt6
