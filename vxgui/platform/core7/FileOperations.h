#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

#include "vxgui/base/String.h"

namespace vxgui::core7 {

/// What saving asks of the operating system, so that a test can let any of it fail or end the
/// program there. Each answers what the system call of that name does, with the reason in errno.
class FileOperations {
public:
    virtual ~FileOperations();

    virtual int Open(const std::string& path, int flags);
    virtual ssize_t Write(int file, const void* data, size_t size);
    virtual int Sync(int file);
    virtual int Rename(const std::string& from, const std::string& to);
    virtual int Remove(const std::string& path);

    /// Those of the calling thread.
    static FileOperations& Current();
    /// Null gives the system's own back; the answer is what was there before.
    static FileOperations* Replace(FileOperations* operations);
};

/// The path of a file that is to be written: its folder may differ in letter case, its own name is
/// taken as it is, so that a file of another spelling isn't lost. Empty for what can be no path.
std::string PathToWrite(const String& path);

/// Writes all of it, in as many steps as it takes; `written` gets the number of bytes.
bool WriteAll(int file, const void* data, size_t size, size_t* written);

/// Notes why something failed, for `kernel::GetLastError`, and answers false.
bool FailWithErrno(int error);

}  // namespace vxgui::core7
