#include "vxgui/frame/Version.h"

namespace vxgui {

int32_t LibraryVersion() { return 902; }

}  // namespace vxgui
