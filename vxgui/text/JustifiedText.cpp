#include "vxgui/text/JustifiedText.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/text/ScratchText.h"
#include "vxgui/text/TabbedWidths.h"
#include "vxgui/text/WideText.h"

namespace vxgui {
namespace {

constexpr int32_t kSpread = -1;

/// One run of the line breaker over a text.
class LineBreaker {
public:
    LineBreaker(gdi::HDC dc, const String& text, int32_t count, const gdi::RECT& rect,
                int32_t align)
        : dc_(dc),
          text_(text.view()),
          count_(count),
          rect_(rect),
          align_(align),
          y_(rect.top),
          widths_(dc, text.view()) {
        gdi::TEXTMETRICA metrics{};
        gdi::GetTextMetricsA(dc, &metrics);
        lineHeight_ = metrics.tmHeight;
        breakChar_ = metrics.tmBreakChar;
        x_ = StartX();
    }

    int32_t Run() {
        for (int32_t i = 0; i <= count_; ++i) {
            const char16_t c = At(i);
            if (EndsLine(i, c)) Flush(c);
        }
        return WrapSub(y_, rect_.top);
    }

private:
    int32_t StartX() const {
        if (align_ == static_cast<int32_t>(gdi::TA_RIGHT)) return rect_.right;
        if (align_ != static_cast<int32_t>(gdi::TA_CENTER)) return rect_.left;
        return RoundHalfEven((double{1} * rect_.left + rect_.right) / 2);
    }

    char16_t At(int32_t i) const {
        return static_cast<size_t>(i) < text_.size() ? text_[static_cast<size_t>(i)] : u'\0';
    }
    bool IsBreak(char16_t c) const { return c == breakChar_; }

    std::u16string_view Line(int32_t end) const {
        const auto start = std::min<size_t>(static_cast<size_t>(lineStart_), text_.size());
        return text_.substr(start, static_cast<size_t>(std::max(end - lineStart_, 0)));
    }

    void Count(int32_t i, int32_t width) {
        lastBreak_ = i;
        lastWidth_ = width;
        ++breaks_;
    }

    // Takes the character at i into account; true when a line ends with it.
    bool EndsLine(int32_t i, char16_t c) {
        const bool breaks = c == u'\t' || IsBreak(c);
        const bool ends = !breaks && (c == 0 || c == 10 || c == 13 || i == count_);
        if (!breaks && !ends) return false;
        const int32_t width = widths_.To(static_cast<size_t>(i));
        if (breaks && width > WidthOf(rect_)) return spreading_ = true;
        Count(i, width);
        // The end of the text counts as a line that was too long, on purpose.
        if (ends && c != 10 && c != 13) spreading_ = true;
        return ends;
    }

    void Flush(char16_t c) {
        const int32_t extra = WrapSub(WidthOf(rect_), lastWidth_);
        const bool spread = align_ == kSpread && spreading_;
        if (spread) gdi::SetTextJustification(dc_, extra, breaks_);
        TabbedTextOutWide(dc_, x_, y_, Line(lastBreak_), rect_.left);
        if (spread) gdi::SetTextJustification(dc_, 0, 0);
        y_ = WrapAdd(y_, lineHeight_);
        lineStart_ = NextLine(c);
        widths_.Start(std::min(static_cast<size_t>(lineStart_), text_.size()));
        lastBreak_ = lineStart_;
        lastWidth_ = 0;
        breaks_ = 0;
    }

    // What is skipped goes by the character that ended the line, not by the one at the break.
    int32_t NextLine(char16_t c) const {
        int32_t next = lastBreak_;
        if (c == 0 || c == 10 || c == 13 || IsBreak(c)) ++next;
        if ((c == 10 && At(next) == 13) || (c == 13 && At(next) == 10)) ++next;
        return next;
    }

    gdi::HDC dc_;
    std::u16string_view text_;
    int32_t count_;
    gdi::RECT rect_;
    int32_t align_;
    int32_t x_ = 0;
    int32_t y_;
    int32_t lineHeight_ = 0;
    char16_t breakChar_ = 0;
    int32_t lineStart_ = 0;
    int32_t lastBreak_ = 0;
    int32_t lastWidth_ = 0;  ///< of the line up to there
    int32_t breaks_ = -1;
    bool spreading_ = false;
    TabbedWidths widths_;
};

}  // namespace

int32_t DrawJustifiedText(gdi::HDC hDC, const String& Text, int32_t nCount, const gdi::RECT& Rect,
                          int32_t Align) {
    const auto size = static_cast<int32_t>(Text.size());
    if (nCount == -1) nCount = size;
    LineBreaker breaker(hDC, Text, std::min(nCount, size), Rect, Align);
    gdi::SetTextAlign(hDC, Align == kSpread ? 0 : static_cast<UINT>(Align));
    return breaker.Run();
}

}  // namespace vxgui
