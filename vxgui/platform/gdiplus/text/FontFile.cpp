#include "vxgui/platform/gdiplus/text/FontFile.h"

#include <sys/mman.h>
#include <unistd.h>

namespace vxgui::gdiplus {
namespace {

bool WriteAll(int descriptor, const char* data, size_t size) {
    while (size > 0) {
        const ssize_t written = write(descriptor, data, size);
        if (written <= 0) return false;
        data += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

}  // namespace

std::shared_ptr<const FontFile> FontFile::Make(const void* data, size_t size) {
    const int descriptor = memfd_create("font", MFD_CLOEXEC);
    if (descriptor < 0) return nullptr;
    std::shared_ptr<const FontFile> file(new FontFile(descriptor));
    return WriteAll(descriptor, static_cast<const char*>(data), size) ? file : nullptr;
}

FontFile::~FontFile() { close(descriptor_); }

std::string FontFile::Path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

}  // namespace vxgui::gdiplus
