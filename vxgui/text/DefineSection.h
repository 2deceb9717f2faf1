#pragma once

#include "vxgui/base/Require.h"
#include "vxgui/platform/core7.h"

namespace vxgui {

/// One section of a define file, for readers that take many keys of it.
class DefineSection {
public:
    /// Raises for no file.
    DefineSection(const Ref<core7::DefineFile>& file, const String& name, const char* source)
        : file_(file), name_(name) {
        Require(file_, source);
    }

    const Ref<core7::DefineFile>& File() const { return file_; }
    const String& Name() const { return name_; }

    String Text(const char* key, const String& fallback = {}) const {
        return file_->GetString(name_, key, fallback);
    }
    int32_t Integer(const char* key, const String& fallback = "0") const {
        return file_->GetInteger(name_, key, fallback);
    }
    double Number(const char* key) const { return file_->GetNumber(name_, key, "0"); }

private:
    Ref<core7::DefineFile> file_;
    const String name_;  // a copy: the reader may be about to set the text that it came from
};

}  // namespace vxgui
