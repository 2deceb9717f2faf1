#include "vxgui/platform/gdi/text/DrawTextCall.h"

#include <algorithm>

#include "vxgui/platform/gdi/StockObjects.h"
#include "vxgui/platform/gdi/text/TextOutput.h"

namespace vxgui::gdi {
namespace {

/// The font that a call measures and draws with.
LOGFONTA FontFor(const DeviceContext& context, const DrawTextOptions& options) {
    const bool internal = options.Has(DT_INTERNAL) && options.Has(DT_CALCRECT);
    return internal ? StockFont(SYSTEM_FONT)->Description() : context.state.font->Description();
}

}  // namespace

DrawTextCall::DrawTextCall(DeviceContext& context, std::u16string_view text, const RECT& rect,
                           UINT flags)
    : context_(context),
      options_(flags),
      source_(text),
      text_(text, !options_.Has(DT_NOPREFIX)),
      rect_(rect),
      setup_(context, FontFor(context, options_)),
      lines_(setup_, options_, text_.Shown(), Width()) {
    setup_.rightToLeft = options_.Has(DT_RTLREADING);
}

void DrawTextCall::Run() {
    int64_t y = Top();
    LineRange line;
    while (!PastBottom(y) && lines_.Next(&line)) {
        if (options_.AnyEllipsis()) {
            DoEllipsisLine(line, y);
        } else {
            DoLine(line, y);
        }
        y += LineHeight();
        first_ = false;
    }
    height_ = y - rect_.top;
    if (options_.Has(DT_SINGLELINE) && height_ == 0) height_ = 1;
}

int64_t DrawTextCall::LineHeight() const {
    const FontMeasures& m = setup_.font->Measures();
    return m.Height() + (options_.Has(DT_EXTERNALLEADING) ? m.externalLeading : 0);
}

int64_t DrawTextCall::Top() const {
    if (!options_.Has(DT_SINGLELINE)) return rect_.top;
    const int64_t height = int64_t{rect_.bottom} - rect_.top;
    if (options_.Has(DT_VCENTER)) return rect_.top + height / 2 - LineHeight() / 2;
    return options_.Has(DT_BOTTOM) ? rect_.bottom - LineHeight() : rect_.top;
}

/// Drawing ends behind the first line that passes the bottom; drawing as an edit control does, it
/// ends before that line.
bool DrawTextCall::PastBottom(int64_t y) const {
    if (first_ || options_.Has(DT_NOCLIP)) return false;
    return options_.Has(DT_EDITCONTROL) ? y + LineHeight() > rect_.bottom : y > rect_.bottom;
}

/// True when the line after the one at `y` can't be seen.
bool DrawTextCall::LastInSight(int64_t y) const {
    if (options_.Has(DT_NOCLIP)) return false;
    const int64_t next = y + LineHeight();
    return options_.Has(DT_EDITCONTROL) ? next + LineHeight() > rect_.bottom : next >= rect_.bottom;
}

/// Far lines of a long text aren't shaped at all.
bool DrawTextCall::OutOfSight(int64_t y) const {
    if (setup_.font->Angle() != 0 || (context_.state.textAlign & TA_UPDATECP) != 0) return false;
    const int64_t reach = 2 * LineHeight();
    return y + reach < 0 || y - reach > context_.Target().height;
}

std::u16string_view DrawTextCall::Shown(const LineRange& line) const {
    return text_.Shown().substr(line.first, line.end - line.first);
}

void DrawTextCall::DoLine(const LineRange& line, int64_t y) {
    if (options_.Has(DT_CALCRECT)) {
        widest_ = std::max(widest_, lines_.WidthOf(line));
    } else if (!OutOfSight(y)) {
        Paint(lines_.Make(Shown(line)), y, MarkIn(line, {}));
    }
}

EllipsisWish DrawTextCall::WishFor(int64_t y) const {
    const bool ends = lines_.AtEnd();
    const bool last = options_.Has(DT_END_ELLIPSIS) && (ends || LastInSight(y));
    EllipsisWish wish;
    wish.path = options_.Has(DT_PATH_ELLIPSIS);
    wish.end = last || options_.Has(DT_WORD_ELLIPSIS);
    wish.force = last && !ends;
    return wish;
}

void DrawTextCall::DoEllipsisLine(LineRange line, int64_t y) {
    const EllipsisWish wish = WishFor(y);
    if (wish.force) {
        // The rest of the paragraph is drawn as far as it goes, and nothing follows.
        line.end = line.paragraphEnd;
        lines_.Stop();
    }
    std::vector<TextCut> cuts;
    if (wish.path || wish.end) cuts = FindCuts(lines_, setup_, Shown(line), Width(), wish);
    if (cuts.empty()) return DoLine(line, y);
    const TextLine made = lines_.Make(WithCuts(Shown(line), cuts));
    if (options_.Has(DT_CALCRECT)) {
        widest_ = std::max(widest_, made.width);
    } else if (!OutOfSight(y)) {
        Paint(made, y, MarkIn(line, cuts));
    }
    KeepCuts(line, cuts, wish.force);
}

/// The unit of the line, as it is drawn, that gets the underline; npos for none.
size_t DrawTextCall::MarkIn(const LineRange& line, const std::vector<TextCut>& cuts) const {
    const size_t mark = text_.LastMark(line.first, line.end);
    if (mark == PrefixText::npos || options_.Has(DT_HIDEPREFIX)) return PrefixText::npos;
    return PlaceAfterCuts(mark - line.first, cuts);
}

int64_t DrawTextCall::LeftOf(const TextLine& line) const {
    if (options_.Has(DT_CENTER)) return rect_.left + (Width() - line.width) / 2;
    return options_.Has(DT_RIGHT) ? rect_.right - line.width : rect_.left;
}

void DrawTextCall::Paint(const TextLine& line, int64_t y, size_t mark) {
    const RECT clip = options_.Has(DT_NOCLIP) ? context_.Target().Bounds() : rect_;
    const TextPoint at = PlaceOf(context_, {LeftOf(line), y});
    if (!options_.Has(DT_PREFIXONLY)) PaintAt(context_, setup_, clip, line, at);
    if (mark == PrefixText::npos) return;
    LinePainter(context_, setup_, clip).PaintPrefix(line, mark, at.x, at.y);
}

/// The place in the source that follows the unit before a place in what is shown, so that a mark
/// stays with the character behind it.
size_t DrawTextCall::SourcePlace(size_t shown) const {
    if (shown == text_.Shown().size()) return source_.size();
    return shown == 0 ? 0 : text_.SourceOf(shown - 1) + 1;
}

/// Notes a line's cuts. With `all` the last one takes everything behind it.
void DrawTextCall::KeepCuts(const LineRange& line, const std::vector<TextCut>& cuts, bool all) {
    for (const TextCut& cut : cuts) {
        cuts_.push_back({SourcePlace(line.first + cut.from), SourcePlace(line.first + cut.to)});
    }
    if (all && !cuts.empty()) cuts_.back().to = source_.size();
}

std::u16string DrawTextCall::Modified() const {
    return cuts_.empty() ? std::u16string() : WithCuts(source_, cuts_);
}

}  // namespace vxgui::gdi
