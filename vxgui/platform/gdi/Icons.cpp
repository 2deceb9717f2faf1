#include <algorithm>
#include <new>

#include "vxgui/platform/gdi/ArgbBlit.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/Icon.h"
#include "vxgui/platform/gdi/PixelMix.h"
#include "vxgui/platform/gdi/RopBlit.h"

namespace vxgui::gdi {
namespace {

constexpr uint32_t kColorBits = 0x00FFFFFF;

std::unique_ptr<Icon> MakeIcon(const ICONINFO& info) {
    const GdiRef<Bitmap> mask = Find<Bitmap>(info.hbmMask);
    const GdiRef<Bitmap> colors = Find<Bitmap>(info.hbmColor);
    if (!mask || (info.hbmColor && !colors)) return nullptr;
    if (colors) return std::make_unique<Icon>(info, *mask, *colors);
    return mask->Height() < 2 ? nullptr : std::make_unique<Icon>(info, *mask);
}

// One part of an icon on its way to a rectangle.
class IconPainter {
public:
    IconPainter(const DeviceContext& dc, const Icon& icon, const BlitGeometry& geometry)
        : dc_(dc), icon_(icon), geometry_(geometry) {}

    bool Over() const {
        return Mix(icon_.Image(), [](uint32_t source, uint32_t destination) {
            return SourceOver(Premultiplied(source), destination);
        });
    }
    bool Copy(const PixelTarget& part) const {
        return Mix(part, [](uint32_t source, uint32_t) { return source & kColorBits; });
    }
    bool AndMask() const {
        return Mix(icon_.Mask(),
                   [](uint32_t mask, uint32_t destination) { return mask & destination; });
    }
    bool XorImage() const {
        return Mix(icon_.Image(), [](uint32_t source, uint32_t destination) {
            return (source ^ destination) & kColorBits;
        });
    }

private:
    template <class One>
    bool Mix(const PixelTarget& part, One one) const {
        return ArgbBlit(dc_, part, MonoColors{}, geometry_,
                        [one](const uint32_t* source, uint32_t* destination, int32_t count) {
                            for (int32_t i = 0; i < count; ++i) {
                                destination[i] = one(source[i], destination[i]);
                            }
                        });
    }

    const DeviceContext& dc_;
    const Icon& icon_;
    const BlitGeometry& geometry_;
};

bool Draw(const IconPainter& painter, const Icon& icon, UINT flags) {
    const bool image = (flags & DI_IMAGE) != 0;
    const bool mask = (flags & DI_MASK) != 0;
    if (image && icon.HasAlpha()) return painter.Over();
    if (image && mask) return painter.AndMask() && painter.XorImage();
    if (image) return painter.Copy(icon.Image());
    return !mask || painter.Copy(icon.Mask());
}

}  // namespace

HICON CreateIconIndirect(const ICONINFO* info) try {
    std::unique_ptr<Icon> made = info ? MakeIcon(*info) : nullptr;
    if (!made) return nullptr;
    const GdiRef<Icon> icon = Enter(std::move(made));
    return icon ? static_cast<HICON>(icon->Handle()) : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

BOOL GetIconInfo(HICON handle, ICONINFO* info) try {
    const GdiRef<Icon> icon = Find<Icon>(handle);
    if (!icon || !info) return 0;
    *info = icon->Describe();
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL DestroyIcon(HICON handle) {
    const GdiRef<Icon> icon = Find<Icon>(handle);
    return icon && HandleTable::Retire(*icon);
}

BOOL DrawIconEx(HDC handle, int x, int y, HICON iconHandle, int width, int height, UINT,
                HBRUSH brushHandle, UINT flags) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    const GdiRef<Icon> icon = Find<Icon>(iconHandle);
    if (!dc || !icon) return 0;
    const int w = width != 0 ? width : icon->Width();
    const int h = height != 0 ? height : icon->Height();
    if (const GdiRef<Brush> brush = Find<Brush>(brushHandle)) {
        RopFill(*dc, RectFromExtents(x, y, w, h), Rop3(PATCOPY), *brush);
    }
    const BlitGeometry geometry{{x, w, 0, icon->Width()}, {y, h, 0, icon->Height()}};
    return Draw(IconPainter(*dc, *icon, geometry), *icon, flags);
}

}  // namespace vxgui::gdi
