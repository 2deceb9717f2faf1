#include "vxgui/frame/PictureHelpers.h"

namespace vxgui {

Ref<ole::Picture> PictureFromHandle(gdi::HGDIOBJ handle, int16_t picType, bool own) {
    return handle ? ole::OleCreatePictureIndirect(handle, picType, own) : nullptr;
}

Ref<ole::IStream> MemoryToStream(const void* address, int32_t size) {
    if (!address || size <= 0) return nullptr;
    const auto* bytes = static_cast<const uint8_t*>(address);
    return ole::CreateStreamOnHGlobal(ByteArray(bytes, bytes + size));
}

}  // namespace vxgui
