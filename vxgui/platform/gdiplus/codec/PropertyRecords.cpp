#include "vxgui/platform/gdiplus/codec/PropertyRecords.h"

#include <algorithm>

namespace vxgui::gdiplus {

size_t RecordSize(std::span<const codecs::ImageProperty> properties) {
    size_t size = 0;
    for (const codecs::ImageProperty& each : properties) {
        size += sizeof(PropertyItem) + each.value.size();
    }
    return size;
}

void StoreProperties(std::span<const codecs::ImageProperty> properties, PropertyItem* to) {
    auto* value = reinterpret_cast<uint8_t*>(to + properties.size());
    for (const codecs::ImageProperty& each : properties) {
        *to++ = {each.id, static_cast<DWORD>(each.value.size()), each.type, value};
        value = std::ranges::copy(each.value, value).out;
    }
}

}  // namespace vxgui::gdiplus
