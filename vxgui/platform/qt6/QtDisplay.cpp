#include "vxgui/platform/qt6/QtDisplay.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace vxgui::qt6 {
namespace {

std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

bool Connects(const std::string& path, bool abstract) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const size_t offset = abstract ? 1 : 0;
    if (path.size() + offset >= sizeof address.sun_path) return false;
    std::memcpy(address.sun_path + offset, path.data(), path.size());
    const int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (handle < 0) return false;
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + offset + path.size());
    const bool connected = connect(handle, reinterpret_cast<sockaddr*>(&address), length) == 0;
    close(handle);
    return connected;
}

// ":1" and ":1.0" are this machine's; one with a host's name is taken to be there.
bool XAnswers(const std::string& display) {
    const size_t colon = display.rfind(':');
    if (display.empty() || colon == std::string::npos) return false;
    if (colon > 0 && display.compare(0, colon, "unix") != 0) return true;
    const std::string number = display.substr(colon + 1, display.find('.', colon) - colon - 1);
    const std::string path = "/tmp/.X11-unix/X" + number;
    return Connects(path, true) || Connects(path, false);
}

bool WaylandAnswers(const std::string& display) {
    if (display.empty()) return false;
    return Connects(display[0] == '/' ? display : Variable("XDG_RUNTIME_DIR") + "/" + display,
                    false);
}

bool NeedsNoDisplay(const std::string& platform) {
    for (const char* name : {"offscreen", "minimal", "vnc", "linuxfb", "eglfs"}) {
        if (platform.rfind(name, 0) == 0) return true;
    }
    return false;
}

}  // namespace

bool DisplayAnswers(std::string* reason) {
    if (NeedsNoDisplay(Variable("QT_QPA_PLATFORM"))) return true;
    if (XAnswers(Variable("DISPLAY")) || WaylandAnswers(Variable("WAYLAND_DISPLAY"))) return true;
    *reason = "no display answers (DISPLAY \"" + Variable("DISPLAY") + "\", WAYLAND_DISPLAY \"" +
              Variable("WAYLAND_DISPLAY") + "\"), so that no dialog can be shown";
    return false;
}

}  // namespace vxgui::qt6
