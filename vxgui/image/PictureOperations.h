#pragma once

#include "vxgui/base/String.h"
#include "vxgui/base/Variant.h"
#include "vxgui/platform/ole.h"

/// The picture operations that the global object offers. Each tries its decoders in an order of
/// its own and answers none when all fail; nothing raises.
namespace vxgui {

Ref<ole::Picture> LoadPicture2(const String& Filename);
Ref<ole::Picture> LoadPictureFromFile(const String& Filename, int32_t BackgraundColor = -1);
Ref<ole::Picture> LoadPictureFromMemAddr(const void* lpMem, int32_t nSize, bool TGAFormat = false,
                                         int32_t BackgraundColor = -1);
Ref<ole::Picture> LoadPictureFromByteArray(const ByteArray& abPic, bool TGAFormat = false,
                                           int32_t BackgraundColor = -1);
Ref<ole::Picture> LoadPictureFromGdiHandle(gdi::HGDIOBJ GDIHandle, int16_t PicType = 1,
                                           bool DeleteGDIHandleWhenDestroyed = true);

// `Flags` names up to three attempts by its hexadecimal digits, the lowest first: 1 GDI+, 2 the
// platform's loader, 3 TGA, any other none.
Ref<ole::Picture> PictureFromMemAddr(const void* lpBits, int32_t nSize, int32_t Flags);
Ref<ole::Picture> PictureFromByteArray(const ByteArray& abPic, int32_t Flags);
Ref<ole::Picture> PictureFromFile(const String& Filename, int32_t Flags);

}  // namespace vxgui
