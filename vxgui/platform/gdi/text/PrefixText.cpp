#include "vxgui/platform/gdi/text/PrefixText.h"

#include <algorithm>

namespace vxgui::gdi {

PrefixText::PrefixText(std::u16string_view text, bool marked) : shown_(text) {
    if (marked && text.find(u'&') != npos) Strip(text);
}

void PrefixText::Strip(std::u16string_view text) {
    storage_.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'&') {
            dropped_.push_back(i++);
            if (i == text.size()) break;
            if (text[i] != u'&') marks_.push_back(storage_.size());
        }
        storage_.push_back(text[i]);
    }
    shown_ = storage_;
}

size_t PrefixText::SourceOf(size_t shown) const {
    // The k-th dropped unit stands before the shown one when it is at most k places behind it.
    size_t low = 0;
    size_t high = dropped_.size();
    while (low < high) {
        const size_t middle = (low + high) / 2;
        if (dropped_[middle] - middle <= shown) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return shown + low;
}

size_t PrefixText::LastMark(size_t from, size_t to) const {
    const auto behind = std::lower_bound(marks_.begin(), marks_.end(), to);
    if (behind == marks_.begin() || *(behind - 1) < from) return npos;
    return *(behind - 1);
}

}  // namespace vxgui::gdi
