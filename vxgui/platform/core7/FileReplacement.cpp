#include "vxgui/platform/core7/FileReplacement.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7/FileHandle.h"
#include "vxgui/platform/core7/FileOperations.h"

namespace vxgui::core7 {
namespace {

struct FreeText {
    void operator()(char* text) const { std::free(text); }
};

std::string WithoutLinks(const std::string& path) {
    const std::unique_ptr<char, FreeText> real(::realpath(path.c_str(), nullptr));
    return real ? real.get() : path;
}

// With its "/"; empty for a bare name.
std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

// Hidden, and never as long as to be no name any more. Two processes never share one.
std::string NameBeside(const std::string& path, int attempt) {
    constexpr size_t kMostOfName = 200;
    const std::string folder = FolderOf(path);
    return folder + "." + path.substr(folder.size(), kMostOfName) + "." +
           std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".tmp";
}

}  // namespace

FileReplacement::FileReplacement(const std::string& path) : target_(path) {
    struct stat status;
    if (::stat(path.c_str(), &status) == 0) {
        there_ = status;
        possible_ = S_ISREG(status.st_mode);
        if (possible_) target_ = WithoutLinks(path);
    } else {
        possible_ = ::lstat(path.c_str(), &status) != 0;
    }
}

bool FileReplacement::Save(const void* data, size_t size) {
    // A rename would go over a file that its owner has protected.
    if (there_ && ::access(target_.c_str(), W_OK) != 0) return FailWithErrno(errno);
    if (!MakeNeighbour()) return false;
    const bool filled = Fill(data, size);
    ::close(file_);
    const bool done = filled && (FileOperations::Current().Rename(neighbour_, target_) == 0 ||
                                 FailWithErrno(errno));
    if (!done) FileOperations::Current().Remove(neighbour_);
    if (done) SyncFolder();
    return done;
}

bool FileReplacement::MakeNeighbour() {
    constexpr int kMostAttempts = 100;  // earlier processes of this number may have been killed
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        neighbour_ = NameBeside(target_, attempt);
        file_ = FileOperations::Current().Open(neighbour_, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC);
        if (file_ >= 0) return true;
        if (errno != EEXIST) break;
    }
    return FailWithErrno(errno == ENOENT ? ENOTDIR : errno);  // it's the folder that isn't there
}

// The new file is as private as the old one was, before it has any bytes.
bool FileReplacement::Fill(const void* data, size_t size) const {
    size_t written = 0;
    if (there_ && ::fchmod(file_, there_->st_mode & 07777) != 0) return FailWithErrno(errno);
    if (!WriteAll(file_, data, size, &written)) return false;
    return FileOperations::Current().Sync(file_) == 0 || FailWithErrno(errno);
}

// So that the new name outlives a power cut too. The file is whole either way: nothing fails here.
void FileReplacement::SyncFolder() const {
    const std::string folder = FolderOf(target_);
    const FileHandle handle(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle) FileOperations::Current().Sync(handle.get());
}

bool WriteWholeFile(const String& path, const void* data, size_t size) {
    const std::string native = PathToWrite(path);
    if (native.empty()) return FailWithErrno(ENOTDIR);
    FileReplacement replacement(native);
    if (replacement.IsPossible()) return replacement.Save(data, size);
    const Ref<OutputFile> file = CreateOutputFile(path);
    return file && file->Write(data, size);
}

}  // namespace vxgui::core7
