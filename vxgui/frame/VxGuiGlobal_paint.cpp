#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/platform/gdi_icons.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

namespace {

/// The two rectangles of a drawing operation.
struct Placement {
    int32_t x, y, w, h;
    int32_t sx, sy, sw, sh;

    /// -1 becomes the rest of the bitmap for the source, and the source's size for the target.
    void Resolve(const gdi::BITMAP& bitmap) {
        if (sw == -1) sw = WrapSub(bitmap.bmWidth, sx);
        if (sh == -1) sh = WrapSub(bitmap.bmHeight, sy);
        if (w == -1) w = sw;
        if (h == -1) h = sh;
    }
};

/// The bitmaps of an icon, for as long as it is being drawn.
class IconParts {
public:
    explicit IconParts(gdi::HICON icon) { gdi::GetIconInfo(icon, &info_); }
    ~IconParts() {
        if (info_.hbmColor) gdi::DeleteObject(info_.hbmColor);
        if (info_.hbmMask) gdi::DeleteObject(info_.hbmMask);
    }
    IconParts(const IconParts&) = delete;
    IconParts& operator=(const IconParts&) = delete;

    gdi::HBITMAP Colours() const { return info_.hbmColor; }

private:
    gdi::ICONINFO info_{};
};

/// A memory context with a bitmap selected.
class BitmapContext {
public:
    BitmapContext(gdi::HDC like, gdi::HBITMAP bitmap)
        : dc_(gdi::CreateCompatibleDC(like)), before_(gdi::SelectObject(dc_, bitmap)) {}
    ~BitmapContext() {
        if (before_) gdi::SelectObject(dc_, before_);
        gdi::DeleteDC(dc_);
    }
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;

    operator gdi::HDC() const { return dc_; }

private:
    gdi::HDC dc_;
    gdi::HGDIOBJ before_;
};

/// One picture that is to be drawn on a context.
struct Drawing {
    VxGuiGlobal& global;
    gdi::HDC target;
    const Ref<ole::Picture>& picture;
    Placement at;
    uint8_t alpha;
    int32_t key;  ///< -1 for none

    void Run() {
        if (picture->Type() != ole::kPictureIcon) {
            return DrawBitmap(static_cast<gdi::HBITMAP>(picture->Handle()), false);
        }
        const auto icon = static_cast<gdi::HICON>(picture->Handle());
        if (at.sx == 0 && alpha == 255) {  // at.sy isn't asked, and that is meant
            gdi::DrawIconEx(target, at.x, at.y, icon, std::max(at.w, 0), std::max(at.h, 0), 0,
                            nullptr, gdi::DI_NORMAL);
        } else {
            const IconParts parts(icon);
            DrawBitmap(parts.Colours(), true);
        }
    }

private:
    void DrawBitmap(gdi::HBITMAP bitmap, bool isIcon) {
        gdi::BITMAP record{};
        gdi::GetObjectA(bitmap, sizeof record, &record);
        at.Resolve(record);
        if (record.bmBitsPixel != 32 && !isIcon && alpha == 255) {
            CopyBitmap(bitmap);
        } else {
            BlendPicture(record.bmBitsPixel == 32);
        }
    }

    void CopyBitmap(gdi::HBITMAP bitmap) {
        const BitmapContext source(target, bitmap);
        if (key != -1) {
            global.TransparentBlt(target, at.x, at.y, at.w, at.h, source, at.sx, at.sy, at.sw,
                                  at.sh, key);
        } else if (at.w != at.sw || at.h != at.sh) {
            global.AlphaBlend(target, at.x, at.y, at.w, at.h, source, at.sx, at.sy, at.sw, at.sh,
                              255, false);
        } else {
            gdi::BitBlt(target, at.x, at.y, at.w, at.h, source, at.sx, at.sy, gdi::SRCCOPY);
        }
    }

    void BlendPicture(bool hasAlphaByte) {
        const int32_t keyOrDefault = key == -1 ? DefaultTransColor : key;
        const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
        surface->TransparentColor(keyOrDefault);
        // A fresh surface can't take an icon's extents, so that one comes to nothing here; meant.
        surface->CreateFromPicture(picture);
        if (!surface->HasAlphaChannel(0, 0, -1, -1)) {
            surface->SetTransColor2(keyOrDefault);
        } else if (hasAlphaByte && key != -1) {
            surface->SetTransColor(key);
        }
        surface->PreMultiplyAlpha();
        surface->AlphaPaintPicture(target, at.x, at.y, at.w, at.h, at.sx, at.sy, at.sw, at.sh,
                                   alpha, true);
    }
};

}  // namespace

int32_t VxGuiGlobal::PaintPicture(gdi::HDC hdcDst, const Ref<ole::Picture>& Picture,
                                  int32_t nXOriginDst, int32_t nYOriginDst, int32_t nWidthDst,
                                  int32_t nHeightDst, int32_t nXOriginSrc, int32_t nYOriginSrc,
                                  int32_t nWidthSrc, int32_t nHeightSrc, uint8_t Alpha,
                                  int32_t TransparentColor) {
    const Ref<ole::Picture> keep = Picture;
    if (!keep || !keep->Handle()) return 0;
    const Placement at{nXOriginDst, nYOriginDst, nWidthDst, nHeightDst,
                       nXOriginSrc, nYOriginSrc, nWidthSrc, nHeightSrc};
    Drawing{*this, hdcDst, keep, at, Alpha, TransparentColor}.Run();
    return 0;
}

}  // namespace vxgui
