#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/surface/Himetric.h"
#include "vxgui/theme/RectLayout.h"
#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

// Keeps a surface on its blending path.
constexpr uint8_t kIconAlpha = 254;
// A value of `IconTransMode` that has no name: copy as it is.
constexpr int32_t kCopyIcon = 3;

/// An icon by its kind, with its size in pixels; all empty when there is none.
struct ClassifiedIcon {
    ole::Picture* picture = nullptr;
    cAlphaDIBSection* surface = nullptr;
    Ref<GpImage> image;
    int32_t width = 0;
    int32_t height = 0;
};

// A bitmap is painted by way of its image.
bool ClassifyImage(Object* object, ClassifiedIcon& icon) {
    icon.image = Ref<GpImage>(dynamic_cast<GpImage*>(object));
    auto* const bitmap = dynamic_cast<GpBitmap*>(object);
    if (bitmap) icon.image = bitmap->Image();
    if (icon.image) {
        icon.width = icon.image->Width();
        icon.height = icon.image->Height();
    }
    return icon.image || bitmap;
}

// The source sizes of -1 mean the whole image.
void PaintIconImage(gdi::HDC dc, GpImage& image, Span x, Span y) {
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    graphics->FromHDC(dc);
    graphics->DrawBitmap(reinterpret_cast<gdiplus::GpBitmap*>(image.Handle()), x.start, y.start,
                         x.size, y.size, 0, 0, -1, -1, gdiplus::UnitPixel);
}

// False for an object of no kind that can be painted.
bool Classify(gdi::HDC dc, Object* object, ClassifiedIcon& icon) {
    if (!object) return true;
    icon.picture = dynamic_cast<ole::Picture*>(object);
    icon.surface = dynamic_cast<cAlphaDIBSection*>(object);
    if (icon.picture) {
        icon.width = HimetricToPixels(dc, icon.picture->Width());
        icon.height = HimetricToPixels(dc, icon.picture->Height());
    } else if (icon.surface) {
        icon.width = icon.surface->Width();
        icon.height = icon.surface->Height();
    } else {
        return ClassifyImage(object, icon);
    }
    return true;
}

Span Between(int32_t start, int32_t end) { return {start, WrapSub(end, start)}; }

}  // namespace

int32_t ThemeItem::DrawIcon(gdi::HDC hDC, const Ref<Object>& Icon, uint32_t, int32_t, int32_t Left,
                            int32_t Top, int32_t& Right, int32_t& Bottom) const try {
    const KeepAlive keep(this);
    ClassifiedIcon icon;
    if (!Classify(hDC, Icon.get(), icon)) return -1;
    // A square, on purpose: the height isn't asked for.
    const int32_t width = iconWidth_ < 1 ? ScaledLength(icon.width, scale_) : iconWidth_;
    const int32_t height = iconWidth_ < 1 ? ScaledLength(icon.height, scale_) : iconWidth_;
    Right = WrapSub(Right, iconMargin_.right);
    Bottom = WrapSub(Bottom, iconMargin_.bottom);
    const Span areaX = Between(WrapAdd(Left, iconMargin_.left), Right);
    const Span areaY = Between(WrapAdd(Top, iconMargin_.top), Bottom);
    const Span x{AlignAlong(areaX, width, iconAlign_ / 3), width};
    const Span y{AlignAlong(areaY, height, iconAlign_ % 3), height};
    if (icon.picture) {
        const int32_t wide = icon.picture->Width(), high = icon.picture->Height();
        icon.picture->Render(hDC, x.start, y.start, x.size, y.size, 0, high, wide,
                             WrapSub(0, high));
    } else if (icon.surface) {
        PaintIconSurface(hDC, *icon.surface, x, y);
    } else if (icon.image) {
        PaintIconImage(hDC, *icon.image, x, y);
    }
    return 0;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.DrawIcon");
}

int32_t ThemeItem::DrawIcon(gdi::HDC hDC, const Ref<Object>& Icon, uint32_t Flags, int32_t State,
                            int32_t Left, int32_t Top) const {
    int32_t right = -1, bottom = -1;
    return DrawIcon(hDC, Icon, Flags, State, Left, Top, right, bottom);
}

void ThemeItem::PaintIconSurface(gdi::HDC hDC, cAlphaDIBSection& icon, Span x, Span y) const {
    const int32_t w = icon.Width(), h = icon.Height();
    if (iconTransMode_ == kCopyIcon) {
        icon.PaintPicture(hDC, x.start, y.start, x.size, y.size, 0, 0, w, h, gdi::SRCCOPY);
        return;
    }
    const bool mayBlend = iconTransMode_ != Trans;
    const bool hasAlpha = mayBlend && icon.HasAlphaChannel(0, 0, -1, -1);
    if (iconTransMode_ == PerPixel || hasAlpha) {
        icon.AlphaPaintPicture(hDC, x.start, y.start, x.size, y.size, 0, 0, w, h, kIconAlpha,
                               hasAlpha);
    } else {
        icon.TransPaintPicture(hDC, x.start, y.start, x.size, y.size, 0, 0, w, h,
                               icon.TransparentColor());
    }
}

namespace {

constexpr COLORREF kMagenta = 0xFF00FF;

/// A solid brush for the length of a scope, painting in columns.
class ColumnBrush {
public:
    ColumnBrush(gdi::HDC dc, int32_t color)
        : dc_(dc), brush_(gdi::CreateSolidBrush(static_cast<COLORREF>(color))) {}
    ~ColumnBrush() { gdi::DeleteObject(brush_); }
    ColumnBrush(const ColumnBrush&) = delete;
    ColumnBrush& operator=(const ColumnBrush&) = delete;

    void Paint(int32_t x, int32_t y, int32_t width, int32_t height) const {
        const gdi::HGDIOBJ old = gdi::SelectObject(dc_, brush_);
        gdi::PatBlt(dc_, x, y, width, height, gdi::PATCOPY);
        gdi::SelectObject(dc_, old);
    }
    // A triangle that points right: four columns, each one pixel lower and two pixels shorter.
    void PaintTriangle(int32_t x, int32_t y, int32_t height) const {
        for (int32_t i = 0; i < 4; ++i) Paint(x + i, y + i, 1, height - 2 * i);
    }

private:
    gdi::HDC dc_;
    gdi::HBRUSH brush_;
};

}  // namespace

Ref<ThemeItem> ThemeItem::CreateMenuArrow() const try {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->Create(12, 8);
    const gdi::HDC dc = surface->hDC();
    ColumnBrush(dc, kMagenta).Paint(0, 0, 12, 8);
    ColumnBrush(dc, StateColour(E_ItemStateNormal)).PaintTriangle(0, 0, 7);
    ColumnBrush(dc, StateColour(E_ItemStateFocus)).PaintTriangle(4, 0, 7);
    // One pixel lower and one taller than the others, on purpose; the surface cuts its first
    // column.
    ColumnBrush(dc, StateColour(E_ItemStateDisabled)).PaintTriangle(8, 1, 8);
    Ref<ThemeItem> arrow = New<ThemeItem>();
    arrow->SetImage(surface, 3, 0, Normal, 0, 1);
    return scale_ == 1 ? arrow : arrow->Scaled(scale_);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.CreateMenuArrow");
}

}  // namespace vxgui
