#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include <new>

#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7/FileHandle.h"
#include "vxgui/platform/core7/FileOperations.h"

namespace vxgui::core7 {
namespace {

// Without waiting: opening a pipe must not stop the caller until somebody writes to it.
FileHandle Open(const std::string& path, int flags) {
    return FileHandle(FileOperations::Current().Open(path, flags | O_CLOEXEC | O_NONBLOCK));
}

// Reads until the end, in steps that double: the size that a file states may be outdated.
bool ReadAll(const FileHandle& file, ByteArray* bytes, size_t expected, size_t limit) {
    size_t filled = 0;
    for (bytes->resize(std::min(expected, limit) + 1);;) {
        const ssize_t count = ::read(file.get(), bytes->data() + filled, bytes->size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return FailWithErrno(errno);
        filled += static_cast<size_t>(count);
        if (filled > limit) return FailWithErrno(EFBIG);
        if (count == 0) break;
        if (filled == bytes->size()) bytes->resize(std::min(filled * 2, limit) + 1);
    }
    bytes->resize(filled);
    return true;
}

bool ReadPlainFile(const String& path, ByteArray* bytes, size_t limit) {
    const FileHandle file = Open(NativePath(path), O_RDONLY);
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0) return FailWithErrno(errno);
    if (!S_ISREG(status.st_mode)) return FailWithErrno(EACCES);
    const auto size = static_cast<size_t>(status.st_size);
    return size > limit ? FailWithErrno(EFBIG) : ReadAll(file, bytes, size, limit);
}

class PlainOutputFile final : public OutputFile {
public:
    explicit PlainOutputFile(FileHandle file) : file_(std::move(file)) {}

    bool Write(const void* data, size_t size, size_t* written) override {
        size_t done = 0;
        const bool good = WriteAll(file_.get(), data, size, &done);
        if (written) *written = done;
        return good;
    }

private:
    FileHandle file_;
};

}  // namespace

bool ReadWholeFile(const String& path, ByteArray* bytes, size_t limit) try {
    bytes->clear();
    if (ReadPlainFile(path, bytes, limit)) return true;
    bytes->clear();
    return false;
} catch (const std::bad_alloc&) {
    return FailWithErrno(ENOMEM);
}

bool ReadWholeFile(const String& path, ByteArray* bytes) {
    return ReadWholeFile(path, bytes, ApartmentLimits().fileBytes);
}

Ref<OutputFile> CreateOutputFile(const String& path) {
    FileHandle file = Open(PathToWrite(path), O_WRONLY | O_CREAT | O_TRUNC);
    if (!file)
        FailWithErrno(errno == ENOENT ? ENOTDIR : errno);  // it's the folder that isn't there
    return file ? New<PlainOutputFile>(std::move(file)) : nullptr;
}

}  // namespace vxgui::core7
