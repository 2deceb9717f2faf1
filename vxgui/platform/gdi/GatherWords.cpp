#include "vxgui/platform/gdi/GatherWords.h"

namespace vxgui::gdi {
namespace {

using Word __attribute__((may_alias, aligned(1))) = uint32_t;

}  // namespace

// Four at a time and not vectorised (the build sees to it): processors gather word by word, and
// putting the words together costs more than it saves.
void GatherWords(const uint8_t* row, const int32_t* columns, size_t count, uint32_t* words) {
    // `auto` would take it to be aligned.
    const Word* const from = reinterpret_cast<const Word*>(row);
    size_t i = 0;
    for (; i + 4 <= count; i += 4) {
        const uint32_t a = from[columns[i]], b = from[columns[i + 1]];
        const uint32_t c = from[columns[i + 2]], d = from[columns[i + 3]];
        words[i] = a;
        words[i + 1] = b;
        words[i + 2] = c;
        words[i + 3] = d;
    }
    for (; i < count; ++i) words[i] = from[columns[i]];
}

}  // namespace vxgui::gdi
