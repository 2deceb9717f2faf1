#include "vxgui/platform/gdi/text/DrawTextLines.h"

#include <algorithm>

namespace vxgui::gdi {
namespace {

bool IsBreak(char16_t unit) { return unit == u'\r' || unit == u'\n'; }

/// Behind the line break at `at`: CR, LF, CR LF or LF CR.
size_t AfterBreak(std::u16string_view text, size_t at) {
    if (at >= text.size()) return at;
    const bool pair = at + 1 < text.size() && IsBreak(text[at + 1]) && text[at + 1] != text[at];
    return at + (pair ? 2 : 1);
}

}  // namespace

DrawTextLines::DrawTextLines(const TextSetup& setup, const DrawTextOptions& options,
                             std::u16string_view text, int64_t width)
    : setup_(setup),
      options_(options),
      text_(text),
      width_(width),
      fresh_(options.Has(DT_SINGLELINE)) {}

TabStops DrawTextLines::Stops() const {
    TabStops stops;
    stops.distance = setup_.font->Measures().averageWidth * options_.TabLength();
    return stops;
}

TextLine DrawTextLines::Make(std::u16string_view line) const {
    return options_.Has(DT_EXPANDTABS) ? MakeTabbedLine(setup_, line, Stops(), 0)
                                       : MakeLine(setup_, line);
}

void DrawTextLines::Stop() {
    at_ = text_.size();
    fresh_ = inside_ = false;
}

void DrawTextLines::EnterParagraph() {
    paragraph_ = at_;
    paragraphEnd_ = text_.size();
    inside_ = true;
    shaped_ = nullptr;
    if (options_.Has(DT_SINGLELINE)) return;
    paragraphEnd_ = std::min(text_.find_first_of(u"\r\n", at_), text_.size());
    if (!options_.Has(DT_WORDBREAK)) return;
    const std::u16string_view paragraph = text_.substr(paragraph_, paragraphEnd_ - paragraph_);
    shaped_ = setup_.Shaped(paragraph);
    places_ = std::make_unique<WrapPlaces>(paragraph, !options_.Has(DT_NOFULLWIDTHCHARBREAK));
}

void DrawTextLines::LeaveParagraph() {
    at_ = AfterBreak(text_, paragraphEnd_);
    inside_ = false;
}

bool DrawTextLines::Next(LineRange* line) {
    if (AtEnd()) return false;
    fresh_ = false;
    if (!inside_) EnterParagraph();
    const Place place = shaped_ ? WrapPlace() : Place{paragraphEnd_, paragraphEnd_};
    *line = {at_, place.end, paragraphEnd_};
    at_ = place.next;
    if (at_ >= paragraphEnd_) LeaveParagraph();
    return true;
}

int64_t DrawTextLines::Advanced(int64_t x, size_t unit) const {
    if (text_[unit] == u'\t' && options_.Has(DT_EXPANDTABS)) return Stops().After(x);
    return x + shaped_->advances[unit - paragraph_];
}

int64_t DrawTextLines::WidthOf(const LineRange& line) const {
    // What has been measured already isn't shaped again.
    if (!shaped_ || line.first < paragraph_) {
        return Make(text_.substr(line.first, line.end - line.first)).width;
    }
    int64_t x = 0;
    for (size_t i = line.first; i < line.end; ++i) x = Advanced(x, i);
    return x;
}

bool DrawTextLines::CanWrap(size_t at, size_t lineStart, Place* place) const {
    if (at == lineStart) return false;
    // One space is swallowed by the wrap; any others stay where they are.
    if (text_[at] == kBreakCharacter) {
        *place = {at, at + 1};
        return true;
    }
    if (!places_->Before(at - paragraph_)) return false;
    *place = {at, at};
    return true;
}

DrawTextLines::Place DrawTextLines::WrapPlace() const {
    Place best = {at_, at_};
    int64_t x = 0;
    for (size_t i = at_; i < paragraphEnd_; ++i) {
        CanWrap(i, at_, &best);
        x = Advanced(x, i);
        if (x <= width_) continue;
        if (best.end > at_) return best;
        if (options_.Has(DT_EDITCONTROL) && i > at_) return {i, i};
        if (!options_.Has(DT_EDITCONTROL)) return WholeWord(i + 1);
    }
    return {paragraphEnd_, paragraphEnd_};
}

DrawTextLines::Place DrawTextLines::WholeWord(size_t from) const {
    Place place = {paragraphEnd_, paragraphEnd_};
    for (size_t i = from; i < paragraphEnd_; ++i) {
        if (CanWrap(i, at_, &place)) break;
    }
    return place;
}

}  // namespace vxgui::gdi
