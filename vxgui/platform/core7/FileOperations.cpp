#include "vxgui/platform/core7/FileOperations.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7/SystemCodes.h"

namespace vxgui::core7 {
namespace {

thread_local FileOperations* replaced = nullptr;

}  // namespace

FileOperations::~FileOperations() = default;

int FileOperations::Open(const std::string& path, int flags) {
    return ::open(path.c_str(), flags, 0666);
}

ssize_t FileOperations::Write(int file, const void* data, size_t size) {
    return ::write(file, data, size);
}

int FileOperations::Sync(int file) { return ::fsync(file); }

int FileOperations::Rename(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str());
}

int FileOperations::Remove(const std::string& path) { return ::unlink(path.c_str()); }

FileOperations& FileOperations::Current() {
    static FileOperations system;
    return replaced ? *replaced : system;
}

FileOperations* FileOperations::Replace(FileOperations* operations) {
    return std::exchange(replaced, operations);
}

std::string PathToWrite(const String& path) {
    const std::string text = path.Utf8();
    const size_t separator = text.find_last_of("/\\");
    if (separator == text.npos) return text.find('\0') == text.npos ? text : std::string();
    const std::string folder = NativePath(text.substr(0, separator + 1));
    const std::string name = text.substr(separator + 1);
    return folder.empty() || name.find('\0') != name.npos ? std::string() : folder + name;
}

bool WriteAll(int file, const void* data, size_t size, size_t* written) {
    const auto* bytes = static_cast<const char*>(data);
    for (*written = 0; *written < size;) {
        const ssize_t count =
            FileOperations::Current().Write(file, bytes + *written, size - *written);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return FailWithErrno(errno);
        *written += static_cast<size_t>(count);
    }
    return true;
}

bool FailWithErrno(int error) {
    kernel::SetLastError(SystemCodeFromErrno(error));
    return false;
}

}  // namespace vxgui::core7
