#pragma once

#include <string>
#include <vector>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/Variant.h"

/// Paths and whole files.
namespace vxgui::core7 {

/// The platform's file-system object. Both separators are understood; what comes out has "/".
class VXPLATFORM_API FileSystem : public Object {
public:
    /// The two with one separator between them; `folder` alone when `name` is empty.
    virtual String BuildPath(const String& folder, const String& name) = 0;
    /// True for a file, false for a folder.
    virtual bool FileExists(const String& path) = 0;
    /// Empty for a bare name and for the root.
    virtual String GetParentFolderName(const String& path) = 0;
    /// What follows the last point of the last part, without the point.
    virtual String GetExtensionName(const String& path) = 0;
};

class VXPLATFORM_API PathService : public Object {
public:
    /// One path of the parts, with single separators; an absolute later part starts afresh and
    /// empty parts count for nothing.
    virtual String JoinPath(const std::vector<String>& parts) = 0;
    virtual bool FileExists(const String& path) = 0;
    /// True for a file and for a folder.
    virtual bool PathExists(const String& path) = 0;
    virtual FileSystem& TheFileSystem() = 0;
};

/// One object per apartment, made on first use.
VXPLATFORM_API PathService& ThePathService();

/// The file service: a whole file at once. False, with the reason in `kernel::GetLastError`, for
/// what is no plain file, cannot be read or is longer than `limit`; `bytes` is then empty. The
/// limit of the short form is the apartment's.
VXPLATFORM_API bool ReadWholeFile(const String& path, ByteArray* bytes, size_t limit);
VXPLATFORM_API bool ReadWholeFile(const String& path, ByteArray* bytes);
/// Makes or replaces the file, whole or not at all: the bytes go to a file beside it, to the disk,
/// and then under its name. False, with the reason in `kernel::GetLastError`; what was there is
/// then still there. A link stays and its target is replaced; a device is written to as it is.
VXPLATFORM_API bool WriteWholeFile(const String& path, const void* data, size_t size);

/// A file that is written piece by piece; the object's end closes it. A failed write leaves the
/// part that was written.
class VXPLATFORM_API OutputFile : public Object {
public:
    /// False when not all of it could be written, with the reason in `kernel::GetLastError`;
    /// `written`, where given, gets the number of bytes that were.
    virtual bool Write(const void* data, size_t size, size_t* written = nullptr) = 0;
};
/// Makes the file or empties the one that is there; none, with the reason in
/// `kernel::GetLastError`, when that fails.
VXPLATFORM_API Ref<OutputFile> CreateOutputFile(const String& path);

/// Whether what `path` leads to, links followed, lies in `folder` or below it. What isn't there
/// lies where its nearest folder that is there does; the empty folder is the current one.
VXPLATFORM_API bool IsWithin(const String& path, const String& folder);

/// The path as the operating system takes it: UTF-8, with "/" for "\". Skins are authored where
/// letter case does not matter: a part that does not exist as written becomes the entry that
/// differs from it in case alone, if there is one. Empty for what can be no path, one with NUL.
VXPLATFORM_API std::string NativePath(const String& path);

}  // namespace vxgui::core7
