#pragma once

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

/// Numbers as the authors of define files write them. Blanks are space and tab; the decimal
/// point is a point in every locale.
namespace vxgui {

/// The value of the longest numeric beginning after leading blanks, 0 if there is none. A decimal
/// number is an optional sign, digits with at most one decimal point, and an exponent ("e" in
/// either case); a comma ends it. "&h", in either case, is followed by hexadecimal digits: up to
/// four are a signed 16-bit number, more a signed 32-bit number that keeps the last eight digits.
/// The result is always finite: what a double cannot hold is 0.
VXPLATFORM_API double LeadingNumber(const String& text);

/// True when the whole text, blanks around it aside, is a number of either form. Commas may
/// group the digits before the decimal point: each stands between two digits, so that "3,4" is
/// numeric although its leading number is 3.
VXPLATFORM_API bool IsNumeric(const String& text);

}  // namespace vxgui
