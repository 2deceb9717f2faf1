#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7/FileHandle.h"
#include "vxgui/platform/core7/SystemCodes.h"

namespace vxgui::core7 {
namespace {

bool Fail(int error) {
    kernel::SetLastError(SystemCodeFromErrno(error));
    return false;
}

// Without waiting: opening a pipe must not stop the caller until somebody writes to it.
FileHandle Open(const String& path, int flags) {
    return FileHandle(::open(NativePath(path).c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666));
}

// Reads until the end, in steps that double: the size that a file states may be outdated.
bool ReadAll(const FileHandle& file, ByteArray* bytes, size_t expected, size_t limit) {
    size_t filled = 0;
    for (bytes->resize(std::min(expected, limit) + 1);;) {
        const ssize_t count = ::read(file.get(), bytes->data() + filled, bytes->size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return Fail(errno);
        filled += static_cast<size_t>(count);
        if (filled > limit) return Fail(EFBIG);
        if (count == 0) break;
        if (filled == bytes->size()) bytes->resize(std::min(filled * 2, limit) + 1);
    }
    bytes->resize(filled);
    return true;
}

bool ReadPlainFile(const String& path, ByteArray* bytes, size_t limit) {
    const FileHandle file = Open(path, O_RDONLY);
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0) return Fail(errno);
    if (!S_ISREG(status.st_mode)) return Fail(EACCES);
    const auto size = static_cast<size_t>(status.st_size);
    return size > limit ? Fail(EFBIG) : ReadAll(file, bytes, size, limit);
}

class PlainOutputFile final : public OutputFile {
public:
    explicit PlainOutputFile(FileHandle file) : file_(std::move(file)) {}

    bool Write(const void* data, size_t size, size_t* written) override {
        const auto* bytes = static_cast<const uint8_t*>(data);
        size_t done = 0;
        while (done < size) {
            const ssize_t count = ::write(file_.get(), bytes + done, size - done);
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) break;
            done += static_cast<size_t>(count);
        }
        if (written) *written = done;
        return done == size || Fail(errno);
    }

private:
    FileHandle file_;
};

}  // namespace

bool ReadWholeFile(const String& path, ByteArray* bytes, size_t limit) {
    bytes->clear();
    if (ReadPlainFile(path, bytes, limit)) return true;
    bytes->clear();
    return false;
}

Ref<OutputFile> CreateOutputFile(const String& path) {
    FileHandle file = Open(path, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file) Fail(errno == ENOENT ? ENOTDIR : errno);  // it's the folder that isn't there
    return file ? New<PlainOutputFile>(std::move(file)) : nullptr;
}

bool WriteWholeFile(const String& path, const void* data, size_t size) {
    const Ref<OutputFile> file = CreateOutputFile(path);
    return file && file->Write(data, size);
}

}  // namespace vxgui::core7
