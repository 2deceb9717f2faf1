#include "vxgui/frame/DllLife.h"

#include "vxgui/frame/modUtilities.h"

namespace vxgui {

DllLife::DllLife() {
    OpenDrawDib(true);
    GDIPlusInitialize();
}

// GDI+ stays up: a picture or a GDI+ object of the host may outlive the apartment's set-up, and
// the end of the process ends GDI+.
DllLife::~DllLife() { OpenDrawDib(false); }

}  // namespace vxgui
