#pragma once

#include <set>

#include "vxgui/theme/lint/Page.h"

namespace vxgui::lint {

/// The palette and the fonts of a UIS file under check.
class VXGUI_LOCAL UisPools {
public:
    explicit UisPools(Page& page);

    /// Checks a section if it is one of the pools'; false for any other.
    bool CheckSection(const String& section);
    /// Checks the numbers in an item's section, which may stand in the taskbar's file.
    void CheckReferences(Page& page, const String& section);
    void ReportUnused();

private:
    /// Sections numbered from 0 up to the first gap.
    struct Run {
        const char* prefix;
        const char* key;  ///< that a member must have; null for the palette
        int32_t count = 0;
        std::set<int32_t> used{};
    };
    bool IsMember(const Run& run, int32_t number) const;
    void Count(Run& run) const;
    bool CheckNumbered(Run& run, const String& section);
    void CheckReference(Page& page, const String& section, const char* key, Run& run);
    void CheckColours(const String& section);
    void ReportUnused(const Run& run);

    Page& page_;
    Run colours_{"Colour", nullptr};
    Run fonts_{"Font", "FontName"};
    Run systemFonts_{"SystemFont", "FontName"};
};

}  // namespace vxgui::lint
