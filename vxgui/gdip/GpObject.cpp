#include "vxgui/gdip/GpObject.h"

#include "vxgui/frame/modUtilities.h"

namespace vxgui {

GpObject::GpObject() { SetUpApartment(); }

}  // namespace vxgui
