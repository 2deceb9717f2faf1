#include <algorithm>

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Image.h"
#include "vxgui/platform/gdiplus/codec/PropertyRecords.h"
#include "vxgui/platform/gdiplus_codecs.h"

namespace vxgui::gdiplus {
namespace {

using codecs::ImageProperty;

// Runs `body(property)` on the property of that number.
template <class Body>
GpStatus OnProperty(GpImage* image, PROPID id, Body body) {
    return FlatOn<Image>(image, [&](Image& found) -> GpStatus {
        const auto at = std::ranges::find(found.properties, id, &ImageProperty::id);
        return at == found.properties.end() ? PropertyNotFound : body(*at);
    });
}

bool HasKnownType(const PropertyItem& item) {
    return item.type >= codecs::kPropertyByte && item.type <= codecs::kPropertySignedRational;
}

}  // namespace

extern "C" {

GpStatus GdipGetPropertyCount(GpImage* image, UINT* count) {
    return FlatGet<Image>(image, count,
                          [](Image& found) { return static_cast<UINT>(found.properties.size()); });
}

GpStatus GdipGetPropertyIdList(GpImage* image, UINT count, PROPID* ids) {
    if (!ids) return InvalidParameter;
    return FlatOn<Image>(image, [&](Image& found) {
        if (count != found.properties.size()) return InvalidParameter;
        std::ranges::transform(found.properties, ids, &ImageProperty::id);
        return Ok;
    });
}

GpStatus GdipGetPropertyItemSize(GpImage* image, PROPID id, UINT* size) {
    if (!size) return InvalidParameter;
    return OnProperty(image, id, [&](const ImageProperty& property) {
        *size = static_cast<UINT>(RecordSize({&property, 1}));
        return Ok;
    });
}

GpStatus GdipGetPropertyItem(GpImage* image, PROPID id, UINT size, PropertyItem* item) {
    if (!item) return InvalidParameter;
    return OnProperty(image, id, [&](const ImageProperty& property) {
        if (size != RecordSize({&property, 1})) return InvalidParameter;
        StoreProperties({&property, 1}, item);
        return Ok;
    });
}

GpStatus GdipGetPropertySize(GpImage* image, UINT* size, UINT* count) {
    if (!size || !count) return InvalidParameter;
    return FlatOn<Image>(image, [&](Image& found) {
        *size = static_cast<UINT>(RecordSize(found.properties));
        *count = static_cast<UINT>(found.properties.size());
        return Ok;
    });
}

GpStatus GdipGetAllPropertyItems(GpImage* image, UINT size, UINT count, PropertyItem* items) {
    if (!items) return InvalidParameter;
    return FlatOn<Image>(image, [&](Image& found) {
        if (count != found.properties.size() || size != RecordSize(found.properties)) {
            return InvalidParameter;
        }
        StoreProperties(found.properties, items);
        return Ok;
    });
}

GpStatus GdipRemovePropertyItem(GpImage* image, PROPID id) {
    return FlatOn<Image>(image, [&](Image& found) {
        return std::erase_if(found.properties,
                             [&](const ImageProperty& each) { return each.id == id; })
                   ? Ok
                   : PropertyNotFound;
    });
}

GpStatus GdipSetPropertyItem(GpImage* image, const PropertyItem* item) {
    if (!item || !HasKnownType(*item) || (item->length && !item->value)) return InvalidParameter;
    return FlatOn<Image>(image, [&](Image& found) {
        const auto* bytes = static_cast<const uint8_t*>(item->value);
        ImageProperty next{item->id, item->type, {bytes, bytes + item->length}};
        const auto at = std::ranges::find(found.properties, item->id, &ImageProperty::id);
        if (at == found.properties.end()) {
            found.properties.push_back(std::move(next));
        } else {
            *at = std::move(next);
        }
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
