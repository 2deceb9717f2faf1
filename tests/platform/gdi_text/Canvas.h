#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vxgui/platform/gdi.h"

namespace vxgui::gdi {

/// A rectangle of pixels; right and bottom lie outside. Empty when there are none.
struct Box {
    int left = 0, top = 0, right = 0, bottom = 0;
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool Empty() const { return right <= left; }
    friend bool operator==(const Box&, const Box&) = default;
};

/// A memory context over a DIB section, filled with one colour, with transparent text of a font.
class Canvas {
public:
    Canvas(int width, int height, int depth = 32, uint32_t fill = 0xFFFFFFFF);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    operator HDC() const { return dc_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    /// The pixel as it stands in a 32-bit bitmap's memory.
    uint32_t Word(int x, int y) const;
    /// The pixel's colour, as 0x00RRGGBB, in any bitmap.
    uint32_t Color(int x, int y) const;
    /// The box around all pixels that aren't of the colour of the fill.
    Box Ink() const;
    bool Blank() const { return Ink().Empty(); }
    /// The columns of a row that aren't of the fill's colour.
    std::vector<int> InkOfRow(int y) const;
    void Clear();

    /// Makes a font and selects it.
    void Font(const LOGFONTA& font);
    void Font(const char* face, int height, int weight = 400);

private:
    const int width_;
    const int height_;
    const int depth_;
    const uint32_t fill_;
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    uint8_t* bits_ = nullptr;
    HFONT font_ = nullptr;
};

LOGFONTA LogFont(const char* face, int height, int weight = 400);

/// Text in memory that may be written to, with room behind it.
class Buffer {
public:
    explicit Buffer(std::u16string_view text) : units_(text) { units_.resize(text.size() + 8); }
    operator char16_t*() { return units_.data(); }
    std::u16string_view Text() const { return units_.c_str(); }

private:
    std::u16string units_;
};

/// The extent of a text in the canvas's font.
SIZE Extent(HDC dc, std::u16string_view text);
/// Draws with `DrawTextW`; the rectangle comes back in `rect`.
int Draw(HDC dc, std::u16string_view text, RECT& rect, UINT flags);
TEXTMETRICA Metrics(HDC dc);

}  // namespace vxgui::gdi
