#pragma once

#include <vector>

#include "vxgui/platform/core7.h"
#include "vxgui/theme/lint/Finding.h"
#include "vxgui/theme/lint/KeyTable.h"

namespace vxgui::lint {

/// A define file under check, and what has been found in it.
class VXGUI_LOCAL Page {
public:
    explicit Page(const String& path);

    bool IsOpen() const { return open_; }
    const Ref<core7::DefineFile>& File() const { return file_; }
    const String& Path() const { return path_; }
    /// The folder that the file lies in; "." for the current one.
    String Folder() const;
    const std::vector<Finding>& Findings() const { return findings_; }

    bool Has(const String& section) const { return file_->PositionOf(section).line > 0; }
    bool Has(const String& section, const String& key) const {
        return file_->PositionOf(section, key).line > 0;
    }
    String Text(const String& section, const String& key) const {
        return file_->GetString(section, key, "");
    }
    int32_t Integer(const String& section, const String& key, const char* fallback = "0") const {
        return file_->GetInteger(section, key, fallback);
    }

    void WarnAt(const String& section, const String& text);
    void WarnAt(const String& section, const String& key, const String& text);
    /// The key names a file outside the skin's folder.
    void WarnOfPlace(const String& section, const String& key, const String& name);
    void FailAt(const String& section, const String& text);
    void FailAt(const String& section, const String& key, const String& text);
    void Fail(const String& text);

    /// Keys before the first section belong to none.
    void CheckLooseKeys();
    /// Checks a section's values; unknown keys are told with the nearest known one. `others` are
    /// keys of the other dialect.
    void CheckKeys(const String& section, const std::vector<KeyTable>& known, KeyTable others = {});
    /// The same for a section that may have keys for other readers: only near misses are told.
    void CheckSomeKeys(const String& section, KeyTable known);

private:
    void Add(Severity severity, core7::DefinePosition at, const String& text);
    void AddUnknownKey(const String& section, const String& key, const std::vector<KeyTable>& known,
                       KeyTable others);

    String path_;
    Ref<core7::DefineFile> file_;
    bool open_;
    std::vector<Finding> findings_;
};

/// "path", in the quotes that texts are shown with.
inline String Quoted(const String& text) { return "\"" + text + "\""; }

}  // namespace vxgui::lint
