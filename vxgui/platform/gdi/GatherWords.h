#pragma once

#include <cstddef>
#include <cstdint>

namespace vxgui::gdi {

/// `words[i]` becomes word `columns[i]` of the row. A row may begin at any address.
void GatherWords(const uint8_t* row, const int32_t* columns, size_t count, uint32_t* words);

}  // namespace vxgui::gdi
