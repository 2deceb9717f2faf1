#include "Canvas.h"

#include <algorithm>
#include <cstring>

namespace vxgui::gdi {

namespace {

struct Info {
    BITMAPINFOHEADER header{};
    RGBQUAD colors[256]{};
};

/// A top-down bitmap; 8 bits with a ramp of greys, 1 bit with black and white.
Info InfoOf(int width, int height, int depth) {
    Info info;
    info.header.biSize = sizeof info.header;
    info.header.biWidth = width;
    info.header.biHeight = -height;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(depth);
    const int last = depth == 1 ? 1 : 255;
    for (int i = 0; i <= last; ++i) {
        const auto grey = static_cast<BYTE>(i * 255 / last);
        info.colors[i] = {grey, grey, grey, 0};
    }
    return info;
}

}  // namespace

Canvas::Canvas(int width, int height, int depth, uint32_t fill)
    : width_(width), height_(height), depth_(depth), fill_(fill), dc_(CreateCompatibleDC(nullptr)) {
    const Info info = InfoOf(width, height, depth);
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(dc_, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS,
                               &bits, nullptr, 0);
    bits_ = static_cast<uint8_t*>(bits);
    SelectObject(dc_, bitmap_);
    SetBkMode(dc_, TRANSPARENT);
    Font("DejaVu Sans", -12);
    Clear();
}

Canvas::~Canvas() {
    DeleteDC(dc_);
    DeleteObject(font_);
    DeleteObject(bitmap_);
}

uint32_t Canvas::Word(int x, int y) const {
    uint32_t word;
    std::memcpy(&word, bits_ + (static_cast<size_t>(y) * width_ + x) * 4, 4);
    return word;
}

uint32_t Canvas::Color(int x, int y) const {
    const COLORREF color = GetPixel(dc_, x, y);
    return (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
}

Box Canvas::Ink() const {
    Box box{width_, height_, 0, 0};
    for (int y = 0; y < height_; ++y) {
        for (const int x : InkOfRow(y)) {
            box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), y + 1};
        }
    }
    return box.right == 0 ? Box{} : box;
}

std::vector<int> Canvas::InkOfRow(int y) const {
    std::vector<int> columns;
    for (int x = 0; x < width_; ++x) {
        if (Color(x, y) != (fill_ & 0xFFFFFF)) columns.push_back(x);
    }
    return columns;
}

void Canvas::Clear() {
    if (depth_ == 32) {
        std::fill_n(reinterpret_cast<uint32_t*>(bits_), width_ * height_, fill_);
        return;
    }
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            SetPixel(dc_, x, y, RGB(fill_ >> 16, fill_ >> 8, fill_));
        }
    }
}

void Canvas::Font(const LOGFONTA& font) {
    const HFONT made = CreateFontIndirectA(&font);
    SelectObject(dc_, made);
    if (font_) DeleteObject(font_);
    font_ = made;
}

void Canvas::Font(const char* face, int height, int weight) { Font(LogFont(face, height, weight)); }

LOGFONTA LogFont(const char* face, int height, int weight) {
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWeight = weight;
    std::strncpy(font.lfFaceName, face, sizeof font.lfFaceName - 1);
    return font;
}

SIZE Extent(HDC dc, std::u16string_view text) {
    SIZE size{-1, -1};
    GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
    return size;
}

int Draw(HDC dc, std::u16string_view text, RECT& rect, UINT flags) {
    Buffer buffer(text);
    return DrawTextW(dc, buffer, static_cast<int>(text.size()), &rect, flags);
}

TEXTMETRICA Metrics(HDC dc) {
    TEXTMETRICA metrics{};
    GetTextMetricsA(dc, &metrics);
    return metrics;
}

}  // namespace vxgui::gdi
