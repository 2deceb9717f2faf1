#pragma once

#include "vxgui/platform/gdi/text/Ellipsis.h"
#include "vxgui/platform/gdi/text/PrefixText.h"

namespace vxgui::gdi {

/// One call of `DrawText`.
class DrawTextCall {
public:
    DrawTextCall(DeviceContext& context, std::u16string_view text, const RECT& rect, UINT flags);

    /// Lays out and, unless it only measures, paints.
    void Run();

    /// From the rectangle's top to the bottom of the last line.
    int64_t Height() const { return height_; }
    int64_t Widest() const { return widest_; }
    const DrawTextOptions& Options() const { return options_; }
    /// The text with the cuts that were made; empty when there were none.
    std::u16string Modified() const;

private:
    int64_t LineHeight() const;
    int64_t Width() const { return int64_t{rect_.right} - rect_.left; }
    int64_t Top() const;
    bool PastBottom(int64_t y) const;
    bool LastInSight(int64_t y) const;
    bool OutOfSight(int64_t y) const;

    void DoLine(const LineRange& line, int64_t y);
    void DoEllipsisLine(LineRange line, int64_t y);
    EllipsisWish WishFor(int64_t y) const;
    std::u16string_view Shown(const LineRange& line) const;
    size_t MarkIn(const LineRange& line, const std::vector<TextCut>& cuts) const;
    int64_t LeftOf(const TextLine& line) const;
    void Paint(const TextLine& line, int64_t y, size_t mark);
    void KeepCuts(const LineRange& line, const std::vector<TextCut>& cuts, bool all);
    size_t SourcePlace(size_t shown) const;

    DeviceContext& context_;
    const DrawTextOptions options_;
    const std::u16string_view source_;
    const PrefixText text_;
    const RECT rect_;
    TextSetup setup_;
    DrawTextLines lines_;
    bool first_ = true;
    int64_t height_ = 0;
    int64_t widest_ = 0;
    std::vector<TextCut> cuts_;  // in places of the source
};

}  // namespace vxgui::gdi
