#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace vxgui::core7 {

/// A file that gets its bytes or stays as it was: they are written to a file beside it, which
/// takes its place by one rename when they are on the disk.
class FileReplacement {
public:
    /// Links are followed: the file that they lead to is replaced, and they stay.
    explicit FileReplacement(const std::string& path);

    /// False for what is there and no plain file, such as a device or a folder, and for a link
    /// to nothing: these have no bytes to lose and can't be replaced.
    bool IsPossible() const { return possible_; }
    /// False, with the reason in `kernel::GetLastError`; the file is then as it was.
    bool Save(const void* data, size_t size);

private:
    bool MakeNeighbour();
    bool Fill(const void* data, size_t size) const;
    void SyncFolder() const;

    std::string target_;
    std::optional<struct stat> there_;
    bool possible_ = true;
    std::string neighbour_;
    int file_ = -1;
};

}  // namespace vxgui::core7
