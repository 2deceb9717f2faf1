#pragma once

#include "vxgui/platform/ole.h"
#include "vxgui/platform/ole_stream.h"

/// What every part that makes pictures shares.
namespace vxgui {

/// A picture over a drawing handle; none for a null one. With `own` it deletes the handle at its
/// end.
Ref<ole::Picture> PictureFromHandle(gdi::HGDIOBJ handle, int16_t picType, bool own);

/// A stream over a copy of the bytes; none for a null address or a size that is not above 0.
Ref<ole::IStream> MemoryToStream(const void* address, int32_t size);

}  // namespace vxgui
