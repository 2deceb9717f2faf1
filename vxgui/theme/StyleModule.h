#pragma once

#include "vxgui/base/String.h"
#include "vxgui/platform/core7.h"

namespace vxgui {

/// The built-in styles: pairs of define files, and their pictures, in the resources of a module.
/// "res:" begins a reference to one: "res:DefaultStyles:blue".
bool IsStyleReference(const String& definition);

/// The reference of the style that matches the desktop's colour scheme.
String ReferenceOfCurrentScheme();
/// The colour scheme of the desktop; empty unless it wears the style whose schemes we match.
String CurrentColourSchemeName();

struct StyleReference {
    String module;  ///< with the ending of a file name
    String style;
};
/// Takes a reference apart, without looking for the module. What is left out is
/// "DefaultStyles.dll" and "blue". Raises error 5 for one that has text and no ":" in it.
StyleReference ParseStyleReference(const String& reference);

/// Where the module lies: as it is named, in the skin's folder, in the program's, or with the
/// library's own data; the name itself when it is nowhere.
String FindStyleModule(const String& name, const String& skinPath);

/// A module that is loaded for the length of a scope.
class LoadedModule {
public:
    explicit LoadedModule(const String& path);
    ~LoadedModule();
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    explicit operator bool() const { return module_ != nullptr; }
    kernel::HMODULE get() const { return module_; }
    /// A text resource as a define file; an empty one when the module lacks it.
    Ref<core7::DefineFile> DefineFile(const String& name) const;

private:
    kernel::HMODULE module_;
};

}  // namespace vxgui
