#pragma once

#include <cstdio>

#include "vxgui/base/String.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui {

/// An identifier as the platform writes it, "{B96B3CAA-0728-11D3-9D7B-0000F81EF32E}".
inline String ClsidText(const gdiplus::CLSID& id) {
    char text[48];
    const BYTE* d = id.Data4;
    std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", id.Data1,
                  id.Data2, id.Data3, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]);
    return text;
}

}  // namespace vxgui
