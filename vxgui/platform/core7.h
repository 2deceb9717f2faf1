#pragma once

#include <memory>
#include <vector>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/Variant.h"
#include "vxgui/platform/kernel.h"

/// The core services: trace, system information, define files, resources, paths, files and the
/// compressor.
namespace vxgui::core7 {

/// The trace sink. Lines go to the function that the host set, else nowhere.
class VXPLATFORM_API Trace : public Object {
public:
    virtual void Start(const String& application, int32_t level) = 0;
    virtual void Write(const String& text, int32_t level) = 0;
};
VXPLATFORM_API Ref<Trace> CreateTrace();

/// The system information object and its two sub-objects.
class VXPLATFORM_API SystemInformation : public Object {
public:
    /// The value that the apartment's switch for the platform's own blits starts from.
    virtual bool PrefersSystemAlphaBlend() = 0;
    /// The description of a system error code.
    virtual String ErrorText(uint32_t code) = 0;
};
VXPLATFORM_API Ref<SystemInformation> CreateSystemInformation();

/// A problem found while a define file was read.
struct DefineProblem {
    int32_t line;    ///< from 1
    int32_t column;  ///< from 1, in UTF-16 units
    String text;
};

/// Where a key or section stands.
struct DefinePosition {
    int32_t line = 0;  ///< 0 when it isn't there
    int32_t column = 0;
};

/// A define file: sections of keys with text values. Section and key names are compared without
/// regard to case.
class VXPLATFORM_API DefineFile : public Object {
public:
    /// The value, or `fallback` when the section or key is absent.
    virtual String GetString(const String& section, const String& key, const String& fallback) = 0;
    /// The value as a 32-bit integer: the leading number of the text, rounded half to even; 0
    /// when it has none. `fallback`, which is text, is converted when the key is absent.
    virtual int32_t GetInteger(const String& section, const String& key,
                               const String& fallback) = 0;
    virtual double GetNumber(const String& section, const String& key, const String& fallback) = 0;
    /// All section names in their order.
    virtual std::vector<String> SectionNames() = 0;
    /// The names of a section's keys in their order.
    virtual std::vector<String> KeyNames(const String& section) = 0;

    /// Binds the object to a file. False, with the reason in `Problems`, when it can't be read;
    /// the object is then empty.
    virtual bool OpenFile(const String& path) = 0;
    /// Reads a whole text; for files that exist in memory alone.
    virtual bool LoadText(const String& text) = 0;

    virtual String Path() const = 0;
    virtual const std::vector<DefineProblem>& Problems() const = 0;
    virtual DefinePosition PositionOf(const String& section, const String& key) const = 0;
    virtual DefinePosition PositionOf(const String& section) const = 0;
};
VXPLATFORM_API Ref<DefineFile> CreateDefineFile();

/// Bounds on what a define file may be; the host may set others for its apartment.
struct DefineLimits {
    size_t bytes = 4u << 20;
    size_t keys = 100000;
};
VXPLATFORM_API DefineLimits& ApartmentDefineLimits();

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
    virtual String BuildPath(const String& folder, const String& name) = 0;
    virtual bool FileExists(const String& path) = 0;
    virtual String GetParentFolderName(const String& path) = 0;
    virtual String GetExtensionName(const String& path) = 0;
};

class VXPLATFORM_API PathService : public Object {
public:
    /// One path of the parts, with single separators; an absolute later part starts afresh.
    virtual String JoinPath(const std::vector<String>& parts) = 0;
    virtual bool FileExists(const String& path) = 0;
    virtual bool PathExists(const String& path) = 0;
    virtual FileSystem& TheFileSystem() = 0;
};

/// One object each per apartment, made on first use.
VXPLATFORM_API ResourceService& TheResourceService();
VXPLATFORM_API PathService& ThePathService();

/// The file service: a whole file at once.
VXPLATFORM_API bool ReadWholeFile(const String& path, ByteArray* bytes, size_t limit = 1u << 30);
VXPLATFORM_API bool WriteWholeFile(const String& path, const void* data, size_t size);

/// The path as the operating system takes it: UTF-8, with "/" for "\".
VXPLATFORM_API std::string NativePath(const String& path);

}  // namespace vxgui::core7
