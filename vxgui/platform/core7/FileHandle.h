#pragma once

#include <unistd.h>

#include <utility>

namespace vxgui::core7 {

/// Owns a descriptor of the operating system; -1 is none.
class FileHandle {
public:
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
    FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    ~FileHandle() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    FileHandle& operator=(FileHandle&&) = delete;

    int get() const { return descriptor_; }
    explicit operator bool() const { return descriptor_ >= 0; }

private:
    int descriptor_;
};

}  // namespace vxgui::core7
