#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

/// A header with room for the largest colour table.
struct DibInfo {
    BITMAPINFOHEADER header{};
    RGBQUAD colors[256]{};

    BITMAPINFO* get() { return reinterpret_cast<BITMAPINFO*>(this); }
    const BITMAPINFO* get() const { return reinterpret_cast<const BITMAPINFO*>(this); }
};

inline DibInfo DibOf(int32_t width, int32_t height, int depth) {
    DibInfo info;
    info.header.biSize = sizeof(info.header);
    info.header.biWidth = width;
    info.header.biHeight = height;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(depth);
    return info;
}

/// A memory context with a DIB section (of a negative height: top row first) selected.
class Canvas {
public:
    Canvas(int32_t width, int32_t height, int depth = 32) : Canvas(DibOf(width, height, depth)) {}
    explicit Canvas(const DibInfo& info) : dc(CreateCompatibleDC(nullptr)) {
        bitmap = CreateDIBSection(dc, info.get(), DIB_RGB_COLORS, &bits, nullptr, 0);
        Select();
    }
    /// Takes over `made`.
    explicit Canvas(HBITMAP made) : dc(CreateCompatibleDC(nullptr)), bitmap(made) { Select(); }
    Canvas(const Canvas&) = delete;
    ~Canvas() {
        SelectObject(dc, old_);
        EXPECT_TRUE(DeleteObject(bitmap));
        EXPECT_TRUE(DeleteDC(dc));
    }

    PixelTarget View() const { return FindContext(dc)->Target(); }
    /// The pixel's word at device coordinates.
    uint32_t At(int32_t x, int32_t y) const {
        uint32_t word = 0;
        LoadRow(View(), x, y, 1, &word);
        return word;
    }
    void Put(int32_t x, int32_t y, uint32_t word) const { StoreRow(View(), x, y, 1, &word); }
    void Fill(uint32_t word) const {
        const PixelTarget view = View();
        for (int32_t y = 0; y < view.height; ++y) {
            for (int32_t x = 0; x < view.width; ++x) Put(x, y, word);
        }
    }
    /// Numbers the pixels from `first`, row by row from the top.
    void Number(uint32_t first = 0) const {
        const PixelTarget view = View();
        for (int32_t y = 0; y < view.height; ++y) {
            for (int32_t x = 0; x < view.width; ++x) Put(x, y, first++);
        }
    }
    /// All words, row by row from the top.
    std::vector<uint32_t> Words() const {
        const PixelTarget view = View();
        std::vector<uint32_t> words(static_cast<size_t>(view.width) *
                                    static_cast<size_t>(view.height));
        for (int32_t y = 0; y < view.height; ++y) {
            LoadRow(view, 0, y, view.width, words.data() + ptrdiff_t{y} * view.width);
        }
        return words;
    }

    HDC dc;
    HBITMAP bitmap = nullptr;
    void* bits = nullptr;

private:
    void Select() {
        EXPECT_NE(bitmap, nullptr);
        old_ = SelectObject(dc, bitmap);
        EXPECT_NE(old_, nullptr);
    }

    HGDIOBJ old_ = nullptr;
};

/// A host's pixels with marked bytes around each row.
class GuardedHost {
public:
    static constexpr uint8_t kGuard = 0xA5;
    static constexpr ptrdiff_t kMargin = 16;

    GuardedHost(int32_t width, int32_t height, bool bottomUp, bool upwards)
        : width_(width),
          height_(height),
          stride_(width * 4 + 2 * kMargin),
          memory_(static_cast<size_t>(stride_ * (height + 2)), kGuard) {
        uint8_t* first = memory_.data() + stride_ + kMargin;
        if (upwards) first += stride_ * (height - 1);
        for (int32_t y = 0; y < height; ++y) std::memset(RowInMemory(y), 0, RowSize());
        dc = CreateHostDC({first, width, height, upwards ? -stride_ : stride_, bottomUp});
    }
    ~GuardedHost() { EXPECT_TRUE(DeleteDC(dc)); }
    GuardedHost(const GuardedHost&) = delete;

    bool Intact() const {
        std::vector<uint8_t> copy = memory_;
        for (int32_t y = 0; y < height_; ++y) {
            std::memset(copy.data() + (y + 1) * stride_ + kMargin, kGuard, RowSize());
        }
        return copy == std::vector<uint8_t>(copy.size(), kGuard);
    }
    /// The word in the given row of memory, from the lowest address.
    uint32_t InMemory(int32_t x, int32_t row) {
        uint32_t word;
        std::memcpy(&word, RowInMemory(row) + x * 4, 4);
        return word;
    }

    HDC dc;

private:
    size_t RowSize() const { return static_cast<size_t>(width_) * 4; }
    uint8_t* RowInMemory(int32_t row) { return memory_.data() + (row + 1) * stride_ + kMargin; }

    int32_t width_;
    int32_t height_;
    ptrdiff_t stride_;
    std::vector<uint8_t> memory_;
};

}  // namespace vxgui::gdi
