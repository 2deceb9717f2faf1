#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "ShapesTestSupport.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/platform/gdi/DeviceContext.h"

namespace vxgui::gdi::test {

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255),
                   kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);

/// A context with a bitmap of its own, top row first in memory. 8 and 1 bits have a table: black,
/// white, then red, green and blue as far as they fit; the last of 256 is the inverse of black.
/// 32-bit pixels start as 0x5A5A5A5A, all others as 0.
class Canvas {
public:
    static constexpr uint32_t kUntouched = 0x5A5A5A5A;

    Canvas(int width, int height, int depth = 32) : width_(width), height_(height) {
        struct {
            BITMAPINFOHEADER header{};
            RGBQUAD colors[256]{};
        } info;
        info.header.biSize = sizeof(info.header);
        info.header.biWidth = width;
        info.header.biHeight = -height;
        info.header.biPlanes = 1;
        info.header.biBitCount = static_cast<WORD>(depth);
        info.colors[1] = info.colors[255] = {255, 255, 255, 0};
        info.colors[2].rgbRed = info.colors[3].rgbGreen = info.colors[4].rgbBlue = 255;
        bitmap = CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS,
                                  &bits_, nullptr, 0);
        if (depth == 32) std::memset(bits_, 0x5A, static_cast<size_t>(width) * height * 4);
        old_ = SelectObject(dc, bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas() {
        DeleteDC(dc);
        DeleteObject(bitmap);
    }

    /// A 32-bit pixel as it stands in memory.
    uint32_t& Word(int x, int y) {
        return static_cast<uint32_t*>(bits_)[static_cast<size_t>(y) * width_ + x];
    }
    DcState& State() { return FindContext(dc)->state; }
    COLORREF At(int x, int y) const { return GetPixel(dc, x, y); }

    /// One character a pixel: '#' for `color`, '.' for all else; a row in each string.
    std::vector<std::string> Picture(COLORREF color) const {
        std::vector<std::string> rows(static_cast<size_t>(height_));
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                rows[static_cast<size_t>(y)] += At(x, y) == color ? '#' : '.';
            }
        }
        return rows;
    }
    int Count(COLORREF color) const {
        int count = 0;
        for (const std::string& row : Picture(color)) count += std::ranges::count(row, '#');
        return count;
    }

    const HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = nullptr;

private:
    const int width_;
    const int height_;
    void* bits_ = nullptr;
    HGDIOBJ old_ = nullptr;
};

/// An object that is deleted at the end of its scope.
template <class Handle>
class Owned {
public:
    explicit Owned(Handle handle) : handle_(handle) {}
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() { DeleteObject(handle_); }
    operator Handle() const { return handle_; }

private:
    const Handle handle_;
};

using Picture = std::vector<std::string>;

}  // namespace vxgui::gdi::test
