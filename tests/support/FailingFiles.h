#pragma once

#include <signal.h>
#include <unistd.h>

#include <cerrno>

#include "vxgui/platform/core7/FileOperations.h"

namespace vxgui::test {

/// Lets the n-th step of saving go wrong, counted from 0; writes are done by half before.
class FailingFiles : public core7::FileOperations {
public:
    enum class Way { Fail, Kill };

    explicit FailingFiles(int step, Way way = Way::Fail)
        : step_(step), way_(way), before_(Replace(this)) {}
    ~FailingFiles() override { Replace(before_); }
    FailingFiles(const FailingFiles&) = delete;
    FailingFiles& operator=(const FailingFiles&) = delete;

    /// Whether there were so many steps.
    bool Happened() const { return taken_ > step_; }

    int Open(const std::string& path, int flags) override {
        return IsBad() ? Fail(ENOSPC) : FileOperations::Open(path, flags);
    }
    ssize_t Write(int file, const void* data, size_t size) override {
        if (taken_ != step_)
            return ++taken_, FileOperations::Write(file, data, size / 2 + size % 2);
        if (full_ || size < 2) return Fail(ENOSPC);
        full_ = true;
        return FileOperations::Write(file, data, size / 2);
    }
    int Sync(int file) override { return IsBad() ? Fail(EIO) : FileOperations::Sync(file); }
    int Rename(const std::string& from, const std::string& to) override {
        return IsBad() ? Fail(EACCES) : FileOperations::Rename(from, to);
    }
    int Remove(const std::string& path) override { return FileOperations::Remove(path); }

private:
    bool IsBad() const { return taken_ == step_ || (++taken_, false); }
    int Fail(int error) {
        ++taken_;
        if (way_ == Way::Kill) ::kill(::getpid(), SIGKILL);
        errno = error;
        return -1;
    }

    const int step_;
    const Way way_;
    FileOperations* const before_;
    mutable int taken_ = 0;
    bool full_ = false;
};

}  // namespace vxgui::test
