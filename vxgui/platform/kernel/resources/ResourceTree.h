#pragma once

#include <functional>

#include "vxgui/platform/kernel.h"
#include "vxgui/platform/kernel/resources/PeSections.h"

namespace vxgui::kernel {

/// The resources in the bytes of a portable executable: directories of types, of names and of
/// languages, then the data. Of several languages the first counts. Any bytes can be given: what
/// doesn't lie inside them whole, isn't there.
///
/// A number is written as "#" and its digits. A name longer than 260 units is passed over, and of
/// a directory as many entries are read as the apartment's limit says.
class ResourceTree {
public:
    explicit ResourceTree(ByteSpan file) : sections_(file), root_(sections_.Resources()) {}

    /// Type and name are compared without regard to case.
    ResourceBlock Find(const String& type, const String& name) const;
    /// At most as many as the limit says.
    std::vector<ModuleResource> All() const;

private:
    struct Entry {
        uint32_t name;
        uint32_t target;
    };
    // Calls `use` for each entry of the directory at an offset until it answers true.
    void ForEach(uint32_t directory, const std::function<bool(Entry)>& use) const;
    size_t LengthOf(Entry entry) const;
    String NameOf(Entry entry) const;
    // The same as comparing what `NameOf` answers.
    bool IsNamed(Entry entry, const String& name) const;
    // The offset of the directory below, 0 for none: the root is below nothing.
    uint32_t Below(Entry entry) const;
    uint32_t Below(uint32_t directory, const String& name) const;
    ResourceBlock FirstLanguage(uint32_t directory) const;
    ResourceBlock DataOf(Entry entry) const;

    PeSections sections_;
    ByteSpan root_;
};

}  // namespace vxgui::kernel
