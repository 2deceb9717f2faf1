#pragma once

#include "vxgui/base/String.h"

/// System error codes with their published values.
namespace vxgui::core7 {

/// The text of a code, empty for one that the table does not have.
String SystemCodeText(uint32_t code);

/// The system error code that stands for an `errno` value.
uint32_t SystemCodeFromErrno(int error);

}  // namespace vxgui::core7
