#pragma once

#include <algorithm>
#include <cstddef>

#include "vxgui/platform/gdiplus/bitmap/Palette.h"

/// Palettes as the published record, whose array goes on past its end.
namespace vxgui::gdiplus {

constexpr size_t PaletteRecordSize(const Palette& palette) {
    return offsetof(ColorPalette, Entries) + palette.entries.size() * sizeof(ARGB);
}

inline ARGB* EntriesOf(ColorPalette* record) {
    return reinterpret_cast<ARGB*>(reinterpret_cast<uint8_t*>(record) +
                                   offsetof(ColorPalette, Entries));
}

/// Writes the flags, the count and the colours; the record must have room.
inline void StorePalette(const Palette& palette, ColorPalette* record) {
    record->Flags = palette.flags;
    record->Count = static_cast<UINT>(palette.entries.size());
    std::ranges::copy(palette.entries, EntriesOf(record));
}

inline Palette LoadPalette(const ColorPalette& record) {
    const ARGB* entries = EntriesOf(const_cast<ColorPalette*>(&record));
    return {record.Flags, {entries, entries + record.Count}};
}

}  // namespace vxgui::gdiplus
