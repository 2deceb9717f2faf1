#pragma once

#include <vector>

#include "vxgui/base/NameIndex.h"
#include "vxgui/platform/core7.h"

namespace vxgui::core7 {

/// The sections and keys of a define file, in their order and by name without regard to case.
class DefineStore {
public:
    struct Entry {
        String name;
        String value;
        DefinePosition position;
    };
    struct Section {
        String name;
        DefinePosition position;  ///< line 0 for the section before the first header
        std::vector<Entry> entries;
        NameIndex places;
    };

    /// The section of that name, made when there is none, becomes the one that `Add` adds to.
    void Enter(const String& name, DefinePosition position);
    /// Adds a key. When the section has it already, nothing changes and the answer is that one.
    const Entry* Add(Entry entry);

    const Section* Find(const String& section) const;
    const Entry* Find(const String& section, const String& key) const;
    const std::vector<Section>& Sections() const { return sections_; }

private:
    std::vector<Section> sections_;
    NameIndex places_;
    size_t current_ = 0;
};

}  // namespace vxgui::core7
