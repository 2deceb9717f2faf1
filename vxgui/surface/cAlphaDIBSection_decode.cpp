#include "vxgui/base/OutOfMemory.h"
#include "vxgui/frame/PictureHelpers.h"
#include "vxgui/image/modPicture.h"
#include "vxgui/image/modTGA.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/surface/Himetric.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

namespace {

/// What `attempt` gives, or the empty value when it raises.
template <class Attempt>
auto Ignoring(Attempt attempt) -> decltype(attempt()) {
    try {
        return attempt();
    } catch (const Error&) {
        return {};
    }
}

Ref<ole::Picture> LoadByOwnLoader(const String& filename, int32_t background) {
    int16_t type = 0;
    const gdi::HGDIOBJ handle = LoadPictureHandle(filename, type, background);
    return PictureFromHandle(handle, type, true);
}

void FillWith(gdi::HDC dc, int32_t width, int32_t height, int32_t color) {
    const gdi::RECT whole{0, 0, width, height};
    const gdi::HBRUSH brush = gdi::CreateSolidBrush(static_cast<COLORREF>(color));
    gdi::FillRect(dc, &whole, brush);
    gdi::DeleteObject(brush);
}

}  // namespace

bool cAlphaDIBSection::CreateFromPictureFile(const String& Filename) try {
    const KeepAlive alive(this);
    auto picture = LoadByPlatform(Filename);
    if (!picture) {
        picture = Ignoring([&] { return LoadByOwnLoader(Filename, TransparentColor()); });
    }
    return picture && Ignoring([&] { return CreateFromPicture(picture); });
} catch (const std::bad_alloc&) {
    return false;
}

bool cAlphaDIBSection::CreateFromByteArray(const ByteArray& b, bool TGAFormat) {
    return !b.empty() && CreateFromPtr(b.data(), static_cast<int32_t>(b.size()), TGAFormat);
}

bool cAlphaDIBSection::CreateFromPtr(const void* lpData, int32_t nSize, bool TGAFormat) try {
    if (TGAFormat || TgaHasFooter(lpData, nSize)) return CreateFromTGAPtr(lpData, nSize);
    const gdi::HBITMAP decoded = GdipMemoryToHBitmap(lpData, nSize, TransparentColor());
    if (!decoded) return false;
    const bool created = CreateFromHBitmap(decoded);
    gdi::DeleteObject(decoded);
    return created;
} catch (const std::bad_alloc&) {
    return false;
}

bool cAlphaDIBSection::CreateFromTGAPtr(const void* lpData, int32_t nSize) try {
    TgaRecord record;
    if (TgaParse(record, lpData, nSize) != tga::kOk ||
        !Create(record.header.width, record.header.height) ||
        TgaDecodeToSurfaceBits(record, bits_) != tga::kOk) {
        return false;
    }
    if (record.attributesType == tga::kPremultiplied) flags_ |= kPremultiplied;
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

bool cAlphaDIBSection::CreateFromPicture(const Ref<ole::Picture>& picThis) try {
    const KeepAlive alive(this);
    const Ref<ole::Picture> picture = picThis;
    if (!picture || !picture->Handle()) return false;
    const int32_t width = HimetricToPixels(hDC_, picture->Width());
    const int32_t height = HimetricToPixels(hDC_, picture->Height());
    const bool rendered = Create(width, height);
    if (rendered) {
        FillWith(hDC_, width, height, TransparentColor());
        picture->Render(hDC_, 0, 0, width, height, 0, picture->Height(), picture->Width(),
                        -picture->Height());
    }
    if (picture->Type() != ole::kPictureBitmap) return rendered;
    // A bitmap comes at its own size in pixels, whatever its extents are.
    return CreateFromHBitmap(static_cast<gdi::HBITMAP>(picture->Handle()));
} catch (const std::bad_alloc&) {
    return false;
}

}  // namespace vxgui
