#pragma once

#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui::test {

/// A define file whose section "s" has these lines.
inline Ref<core7::DefineFile> SectionOf(const String& lines) {
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    file->LoadText("[s]\n" + lines);
    return file;
}

/// What the font handle was made of; all 0 for a handle that has ended.
inline gdi::LOGFONTA RecordOf(gdi::HFONT font) {
    gdi::LOGFONTA record{};
    gdi::GetObjectA(font, sizeof record, &record);
    return record;
}

inline bool IsAlive(gdi::HFONT font) {
    gdi::LOGFONTA record;
    return gdi::GetObjectA(font, sizeof record, &record) != 0;
}

}  // namespace vxgui::test
