#pragma once

#include "vxgui/base/Export.h"
#include "vxgui/base/Variant.h"

/// Values read from where their kind isn't certain, such as a property bag that another program
/// wrote. What has no meaning as the kind asked for raises the type mismatch error, and a number
/// that does not fit raises the overflow error. Empty is 0 and the empty text.
namespace vxgui {

/// Truth is -1. Fractions round half to even; text must be a number as a whole.
VXPLATFORM_API int32_t IntegerFrom(const Variant& value, const char* source);
/// The same within 0 to 255; truth is 255, all ones.
VXPLATFORM_API uint8_t ByteFrom(const Variant& value, const char* source);
VXPLATFORM_API String TextFrom(const Variant& value, const char* source);

}  // namespace vxgui
