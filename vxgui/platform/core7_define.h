#pragma once

#include <vector>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/limits.h"

/// Define files: the text files that skins and theme sets are authored in.
namespace vxgui::core7 {

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

/// The bounds of define files in the calling apartment: a part of `ApartmentLimits`.
using vxgui::DefineLimits;
inline DefineLimits& ApartmentDefineLimits() { return ApartmentLimits().define; }

/// Changes single values of a define file and leaves everything else of it as it is: order,
/// comments, blanks and the spelling of names.
class VXPLATFORM_API DefineEditor : public Object {
public:
    /// Reads a file as `DefineFile` does. False, and nothing changes, when it can't be read.
    virtual bool OpenFile(const String& path) = 0;
    virtual void LoadText(const String& text) = 0;
    /// Gives the key the value: where the key stands, else behind the last line of the section,
    /// else in a new section at the end. Raises error 5 for what no line can say, such as a value
    /// of two lines.
    virtual void SetString(const String& section, const String& key, const String& value) = 0;
    virtual String Text() const = 0;
    /// Writes the text as UTF-8, whole or not at all. False, with the reason in
    /// `kernel::GetLastError`, when it fails.
    virtual bool Save(const String& path) = 0;
};
VXPLATFORM_API Ref<DefineEditor> CreateDefineEditor();

}  // namespace vxgui::core7
