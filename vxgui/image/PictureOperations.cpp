#include "vxgui/image/PictureOperations.h"

#include <limits>

#include "vxgui/image/modPicture.h"

namespace vxgui {
namespace {

constexpr int32_t kWhite = -1;

Ref<ole::Picture> OwningPicture(gdi::HGDIOBJ handle, int16_t type = ole::kPictureBitmap) {
    return PictureFromHandle(handle, type, true);
}

Ref<ole::Picture> LoadByName(const String& filename, int32_t background) {
    int16_t type = 0;
    const gdi::HGDIOBJ handle = LoadPictureHandle(filename, type, background);
    return OwningPicture(handle, type);
}

// What no 32-bit count holds is no picture.
int32_t SizeOf(const ByteArray& bytes) {
    return bytes.size() > std::numeric_limits<int32_t>::max() ? 0
                                                              : static_cast<int32_t>(bytes.size());
}

// Three digits at most, the lowest first; `attempt` answers the picture of one.
template <class Attempt>
Ref<ole::Picture> ByDigits(int32_t flags, Attempt attempt) {
    for (int round = 0; round < 3; ++round, flags /= 16) {
        if (Ref<ole::Picture> picture = attempt(flags & 15)) return picture;
    }
    return nullptr;
}

}  // namespace

Ref<ole::Picture> LoadPicture2(const String& Filename) {
    const Ref<ole::Picture> picture = LoadByName(Filename, 0);
    return picture ? picture : LoadByPlatform(Filename);
}

Ref<ole::Picture> LoadPictureFromFile(const String& Filename, int32_t BackgraundColor) {
    return LoadByName(Filename, BackgraundColor);
}

Ref<ole::Picture> LoadPictureFromMemAddr(const void* lpMem, int32_t nSize, bool TGAFormat,
                                         int32_t BackgraundColor) {
    gdi::HBITMAP bitmap = nullptr;
    if (!TGAFormat) bitmap = GdipMemoryToHBitmap(lpMem, nSize, BackgraundColor);
    return OwningPicture(bitmap ? bitmap : TgaMemoryToHBitmap(lpMem, nSize));
}

Ref<ole::Picture> LoadPictureFromByteArray(const ByteArray& abPic, bool TGAFormat,
                                           int32_t BackgraundColor) {
    return LoadPictureFromMemAddr(abPic.data(), SizeOf(abPic), TGAFormat, BackgraundColor);
}

Ref<ole::Picture> LoadPictureFromGdiHandle(gdi::HGDIOBJ GDIHandle, int16_t PicType,
                                           bool DeleteGDIHandleWhenDestroyed) {
    return PictureFromHandle(GDIHandle, PicType, DeleteGDIHandleWhenDestroyed);
}

Ref<ole::Picture> PictureFromMemAddr(const void* lpBits, int32_t nSize, int32_t Flags) {
    return ByDigits(Flags, [&](int32_t digit) -> Ref<ole::Picture> {
        switch (digit) {
            case 1:
                return OwningPicture(GdipMemoryToHBitmap(lpBits, nSize, kWhite));
            case 2:
                return OleMemoryToPicture(lpBits, nSize);
            case 3:
                return OwningPicture(TgaMemoryToHBitmap(lpBits, nSize));
            default:
                return nullptr;
        }
    });
}

Ref<ole::Picture> PictureFromByteArray(const ByteArray& abPic, int32_t Flags) {
    return PictureFromMemAddr(abPic.data(), SizeOf(abPic), Flags);
}

Ref<ole::Picture> PictureFromFile(const String& Filename, int32_t Flags) {
    return ByDigits(Flags, [&](int32_t digit) -> Ref<ole::Picture> {
        switch (digit) {
            case 1:
                return OwningPicture(GdipFileToHBitmap(Filename, kWhite));
            case 2:
                return LoadByPlatform(Filename);
            case 3:
                return OwningPicture(TgaFileToHBitmap(Filename));
            default:
                return nullptr;
        }
    });
}

}  // namespace vxgui
