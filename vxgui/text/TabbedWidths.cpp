#include "vxgui/text/TabbedWidths.h"

#include <algorithm>

#include "vxgui/text/WideText.h"

namespace vxgui {
namespace {

// A word without an end is measured in parts of this many units.
constexpr size_t kLongestPart = 256;

bool IsLowSurrogate(char16_t c) { return (c & 0xFC00) == 0xDC00; }

}  // namespace

TabbedWidths::TabbedWidths(gdi::HDC dc, std::u16string_view text)
    : dc_(dc), text_(text), tabWidth_(GetTabbedTextExtentWide(dc, u"\t") & 0xFFFF) {}

void TabbedWidths::Start(size_t start) {
    start_ = start;
    headKnown_ = false;
}

int32_t TabbedWidths::To(size_t end) {
    if (end <= start_) return 0;
    Extend(end);
    while (places_[first_].at < start_) ++first_;
    if (!headKnown_) head_ = Extent(start_, places_[first_].at);
    headKnown_ = true;
    const int64_t last = places_.back().x;
    const size_t tab = TabFrom(first_);
    int64_t width = head_ + last - places_[first_].x;
    // Behind its first tab a line keeps to the stops, as the text does behind that tab.
    if (tab + 1 < places_.size()) {
        width = StopAfter(head_ + places_[tab].x - places_[first_].x) + last - places_[tab + 1].x;
    }
    return static_cast<int16_t>(width);
}

void TabbedWidths::Extend(size_t end) {
    while (places_.back().at < end) {
        const size_t at = places_.back().at;
        const std::u16string_view part = text_.substr(at, std::min(end - at, kLongestPart));
        size_t length = std::min(part.find(u'\t'), part.size());
        if (at + length < end && IsLowSurrogate(text_[at + length]) && length > 1) --length;
        Append(std::max<size_t>(length, 1));
    }
}

void TabbedWidths::Append(size_t length) {
    const Place last = places_.back();
    const bool isTab = text_[last.at] == u'\t';
    const int64_t x = isTab ? StopAfter(last.x) : last.x + Extent(last.at, last.at + length);
    places_.push_back({last.at + length, x});
}

size_t TabbedWidths::TabFrom(size_t place) {
    tab_ = std::max(tab_, place);
    while (tab_ + 1 < places_.size() && text_[places_[tab_].at] != u'\t') ++tab_;
    return tab_;
}

int64_t TabbedWidths::Extent(size_t from, size_t to) const {
    if (from == to) return 0;
    return GetTabbedTextExtentWide(dc_, text_.substr(from, to - from)) & 0xFFFF;
}

int64_t TabbedWidths::StopAfter(int64_t x) const {
    return tabWidth_ > 0 ? (x / tabWidth_ + 1) * tabWidth_ : x;
}

}  // namespace vxgui
