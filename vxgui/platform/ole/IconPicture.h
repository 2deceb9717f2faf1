#pragma once

#include "vxgui/platform/gdi_icons.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {

/// Copies of an icon's two bitmaps, deleted at the end.
class IconParts {
public:
    explicit IconParts(gdi::HICON icon);
    ~IconParts();
    IconParts(const IconParts&) = delete;
    IconParts& operator=(const IconParts&) = delete;

    explicit operator bool() const { return size_.cx > 0 && size_.cy > 0; }
    gdi::SIZE Size() const { return size_; }
    /// 32-bit words of the colours and of the mask (black or white), the bottom row first; empty
    /// on failure.
    std::vector<uint32_t> Colours() const;
    std::vector<uint32_t> Mask() const;

private:
    std::vector<uint32_t> Words(gdi::HBITMAP bitmap, LONG height) const;

    gdi::ICONINFO info_{};
    gdi::SIZE size_{};
};

/// A picture over an icon or cursor.
class IconPicture final : public Picture {
public:
    IconPicture(gdi::HICON icon, gdi::SIZE pixels, bool own);

    gdi::HGDIOBJ Handle() const override { return icon_; }
    int16_t Type() const override { return kPictureIcon; }
    int32_t Width() const override { return width_; }
    int32_t Height() const override { return height_; }
    /// An icon is drawn whole, whatever the source rectangle.
    void Render(gdi::HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy, int32_t sourceX,
                int32_t sourceY, int32_t sourceCx, int32_t sourceCy) const override;
    bool SaveAsFile(ByteArray* bytes) const override;

protected:
    ~IconPicture() override;

private:
    const gdi::HICON icon_;
    const bool own_;
    const int32_t width_;   // HIMETRIC
    const int32_t height_;  // HIMETRIC
};

}  // namespace vxgui::ole
