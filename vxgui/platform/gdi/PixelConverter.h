#pragma once

#include "vxgui/platform/gdi/PixelTarget.h"

namespace vxgui::gdi {

class DeviceContext;

/// The colours (0x00RRGGBB) that stand in for those that a monochrome bitmap lacks.
struct MonoColors {
    uint32_t zero = 0x000000;  ///< what a 0 shows elsewhere: the target context's text colour
    uint32_t one = 0xFFFFFF;   ///< what a 1 shows elsewhere: the target context's background
    /// What becomes a 1 in a monochrome target: the source context's background; all else is 0.
    uint32_t key = 0xFFFFFF;
};

/// The colours of a copy from `source`, or from no context, to `dc`.
MonoColors MonoColorsOf(const DeviceContext& dc, const DeviceContext* source);

/// Finds the pixel word that shows a colour best in a bitmap's form.
class ColorMatcher {
public:
    explicit ColorMatcher(const PixelTarget& to) : depth_(to.depth), colors_(to.colors) {}

    /// The word for a colour 0x00RRGGBB: the nearest of the bitmap's colours, the first of
    /// several; black or white without colours. The alpha byte of a 32-bit word is 0.
    uint32_t Word(uint32_t color);
    bool Monochrome() const { return depth_ == 1 && !colors_; }

private:
    uint32_t Search(uint32_t color) const;

    const int depth_;
    const ColorTable* const colors_;
    // The last colour looked for; pictures have runs.
    uint32_t lastColor_ = 0xFFFFFFFF;
    uint32_t lastWord_ = 0;
};

/// The colour 0x00RRGGBB that a word of `from` shows.
uint32_t ColorOf(const PixelTarget& from, uint32_t word, const MonoColors& mono);

/// Turns words of one bitmap's form into words of another's. Between 32-bit bitmaps the alpha
/// byte stays; from any other form it becomes 0.
class PixelConverter {
public:
    PixelConverter(const PixelTarget& from, const PixelTarget& to, const MonoColors& mono);

    /// The words stay as they are.
    bool Same() const { return way_ == Way::Same; }
    void Convert(uint32_t* words, int32_t count);

private:
    enum class Way : uint8_t { Same, Table, Match };
    void FillTable(const PixelTarget& from);
    uint32_t WordOf(uint32_t color);

    const MonoColors mono_;
    ColorMatcher matcher_;
    Way way_;
    std::array<uint32_t, 256> table_;
};

}  // namespace vxgui::gdi
