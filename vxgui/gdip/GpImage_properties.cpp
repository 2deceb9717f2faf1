#include "vxgui/gdip/GpImage.h"

namespace vxgui {

uint32_t GpImage::PropertyCount() { return Asked<UINT>(flat::GdipGetPropertyCount); }

bool GpImage::GetPropertyIdList(uint32_t Count, gdiplus::PROPID* List) {
    return Check(flat::GdipGetPropertyIdList(handle_, Count, List));
}

uint32_t GpImage::GetPropertyItemSize(gdiplus::PROPID PropId) {
    UINT size = 0;
    Check(flat::GdipGetPropertyItemSize(handle_, PropId, &size));
    return size;
}

bool GpImage::GetPropertyItem(gdiplus::PROPID PropId, uint32_t PropSize,
                              gdiplus::PropertyItem* Buffer) {
    return Check(flat::GdipGetPropertyItem(handle_, PropId, PropSize, Buffer));
}

bool GpImage::GetPropertySize(uint32_t& TotalBufferSize, uint32_t& NumProperties) {
    TotalBufferSize = NumProperties = 0;
    return Check(flat::GdipGetPropertySize(handle_, &TotalBufferSize, &NumProperties));
}

bool GpImage::GetAllPropertyItems(uint32_t TotalBufferSize, uint32_t NumProperties,
                                  gdiplus::PropertyItem* Items) {
    return Check(flat::GdipGetAllPropertyItems(handle_, TotalBufferSize, NumProperties, Items));
}

bool GpImage::RemovePropertyItem(gdiplus::PROPID PropId) {
    return Check(flat::GdipRemovePropertyItem(handle_, PropId));
}

bool GpImage::SetPropertyItem(const gdiplus::PropertyItem* Item) {
    return Check(flat::GdipSetPropertyItem(handle_, Item));
}

}  // namespace vxgui
