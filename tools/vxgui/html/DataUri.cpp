#include "tools/vxgui/html/DataUri.h"

#include <glib.h>

#include <memory>

namespace vxgui::tool {

std::string DataUri(const Sheet& sheet) {
    const ByteArray png = sheet.Png();
    const std::unique_ptr<gchar, decltype(&g_free)> text(g_base64_encode(png.data(), png.size()),
                                                         &g_free);
    return std::string("data:image/png;base64,") + text.get();
}

}  // namespace vxgui::tool
