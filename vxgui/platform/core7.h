#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/Variant.h"
#include "vxgui/platform/kernel.h"

/// The core services: trace, system information, define files, resources, paths, files and the
/// compressor.
namespace vxgui::core7 {

/// The trace object. Its lines go to the function that the host set, else nowhere.
class VXPLATFORM_API Trace : public Object {
public:
    /// Names the application whose lines these are; before, they carry an empty name. `level` is
    /// the lowest level that is passed on.
    virtual void Start(const String& application, int32_t level) = 0;
    virtual void Write(const String& text, int32_t level) = 0;
};
VXPLATFORM_API Ref<Trace> CreateTrace();

/// Where the lines of the calling apartment's trace objects go, those made earlier included; an
/// empty function ends it. The sink must not raise.
using TraceSink = std::function<void(const String& application, const String& text, int32_t level)>;
VXPLATFORM_API void SetTraceSink(TraceSink sink);

/// The system information object.
class VXPLATFORM_API SystemInformation : public Object {
public:
    /// The value that the apartment's switch for the platform's own blits starts from: false.
    virtual bool PrefersSystemAlphaBlend() = 0;
    /// The description of a system error code, in one line; never empty.
    virtual String ErrorText(uint32_t code) = 0;
};
VXPLATFORM_API Ref<SystemInformation> CreateSystemInformation();

/// A problem found while a define file was read. Reading goes on behind it.
struct DefineProblem {
    int32_t line;    ///< from 1; 0 when the file as a whole is meant
    int32_t column;  ///< from 1, in UTF-16 units
    String text;
};

/// "path:line:column: text"; what isn't known is left out.
VXPLATFORM_API String DescribeProblem(const String& path, const DefineProblem& problem);

/// Where a key or section stands.
struct DefinePosition {
    int32_t line = 0;  ///< from 1; 0 when it isn't there
    int32_t column = 0;
};

/// A define file: sections of keys with text values, in the lines "[section]", "key = value" and
/// "; comment". Section and key names are compared without regard to case. Blanks around names
/// and values are cut, then one pair of quotes (" or ') around a value; a ";" in a value is part
/// of it. Sections of one name are one section; of keys of one name in a section the first
/// counts. Keys before the first header belong to the section with the empty name.
class VXPLATFORM_API DefineFile : public Object {
public:
    /// The value, or `fallback` when the section or key is absent.
    virtual String GetString(const String& section, const String& key, const String& fallback) = 0;
    /// The value as a 32-bit integer: the leading number of the text (vxgui/base/NumberText.h),
    /// rounded half to even; 0 when it has none. It wraps, so that 4294967295 is -1, as in
    /// colours without a sign; beyond 64 bits it is 0. `fallback`, which is text, is converted
    /// in the same way when the key is absent.
    virtual int32_t GetInteger(const String& section, const String& key,
                               const String& fallback) = 0;
    /// The leading number itself; always finite.
    virtual double GetNumber(const String& section, const String& key, const String& fallback) = 0;
    /// The names of all sections that have a header, in their order.
    virtual std::vector<String> SectionNames() = 0;
    /// The names of a section's keys in their order.
    virtual std::vector<String> KeyNames(const String& section) = 0;

    /// Reads a file: UTF-8 or UTF-16 by its byte-order mark; without one UTF-8 if it is well
    /// formed, else the ANSI code page of the apartment. False, with the reason in `Problems`,
    /// when it can't be read or is beyond the limits; the object is then empty.
    virtual bool OpenFile(const String& path) = 0;
    /// Reads a whole text; for files that exist in memory alone.
    virtual bool LoadText(const String& text) = 0;

    /// The path that was given to `OpenFile`; empty for a text.
    virtual String Path() const = 0;
    /// In the order of the lines.
    virtual const std::vector<DefineProblem>& Problems() const = 0;
    /// Where the key's name stands.
    virtual DefinePosition PositionOf(const String& section, const String& key) const = 0;
    /// Where the name in the section's first header stands.
    virtual DefinePosition PositionOf(const String& section) const = 0;
};
VXPLATFORM_API Ref<DefineFile> CreateDefineFile();

/// Bounds on what a define file may be; the host may set others for its apartment.
struct DefineLimits {
    size_t bytes = 4u << 20;  ///< of a file; of a text, its 16-bit units
    size_t keys = 100000;     ///< lines with a key or a section header
};
VXPLATFORM_API DefineLimits& ApartmentDefineLimits();

/// The compressor of persisted pixels: one zstd frame (RFC 8878) that states the size of its
/// content.
VXPLATFORM_API ByteArray Compress(const ByteArray& bytes);
/// The size of the content; 0 for what is not compressed, or says more than the limit.
VXPLATFORM_API size_t GetSize(const ByteArray& compressed);
/// The content; none for what is not compressed, is damaged, says more than the limit, or holds
/// another amount than it says.
VXPLATFORM_API std::optional<ByteArray> Decompress(const ByteArray& compressed);
/// What a frame may claim to hold, looked at before memory is taken; the host may set another
/// for its apartment.
VXPLATFORM_API size_t& ApartmentDecompressionLimit();

class VXPLATFORM_API ResourceService : public Object {
public:
    /// The bytes of a resource, empty if there is none.
    virtual ByteArray ReadResource(kernel::HMODULE module, const String& type,
                                   const String& name) = 0;
    virtual bool IsEmptyArray(const ByteArray& bytes) = 0;
};

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

/// One object each per apartment, made on first use.
VXPLATFORM_API ResourceService& TheResourceService();
VXPLATFORM_API PathService& ThePathService();

/// The file service: a whole file at once. False, with the reason in `kernel::GetLastError`, for
/// what is no plain file, cannot be read or is longer than `limit`; `bytes` is then empty.
VXPLATFORM_API bool ReadWholeFile(const String& path, ByteArray* bytes, size_t limit = 1u << 30);
/// Makes or replaces the file. A failed write leaves the part that was written.
VXPLATFORM_API bool WriteWholeFile(const String& path, const void* data, size_t size);

/// A file that is written piece by piece; the object's end closes it.
class VXPLATFORM_API OutputFile : public Object {
public:
    /// False when not all of it could be written, with the reason in `kernel::GetLastError`;
    /// `written`, where given, gets the number of bytes that were.
    virtual bool Write(const void* data, size_t size, size_t* written = nullptr) = 0;
};
/// Makes the file or empties the one that is there; none, with the reason in
/// `kernel::GetLastError`, when that fails.
VXPLATFORM_API Ref<OutputFile> CreateOutputFile(const String& path);

/// The path as the operating system takes it: UTF-8, with "/" for "\". Skins are authored where
/// letter case does not matter: a part that does not exist as written becomes the entry that
/// differs from it in case alone, if there is one. Empty for what can be no path, one with NUL.
VXPLATFORM_API std::string NativePath(const String& path);

/// Wall time for diagnostics.
class Stopwatch {
public:
    void Restart() { start_ = Clock::now(); }
    double ElapsedMilliseconds() const {
        return std::chrono::duration<double, std::milli>(Clock::now() - start_).count();
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
};

}  // namespace vxgui::core7
