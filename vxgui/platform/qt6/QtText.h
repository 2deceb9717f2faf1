#pragma once

#include <QString>
#include <string_view>

namespace vxgui::qt6 {

inline QString TextOf(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace vxgui::qt6
