#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vxgui::gdi {

/// A text whose "&" mark the character behind them: "&&" shows one "&", any other isn't shown.
class PrefixText {
public:
    /// Without `marked` the text is shown as it is.
    PrefixText(std::u16string_view text, bool marked);
    PrefixText(const PrefixText&) = delete;
    PrefixText& operator=(const PrefixText&) = delete;

    std::u16string_view Shown() const { return shown_; }
    /// The place in the whole text of a unit that is shown.
    size_t SourceOf(size_t shown) const;
    /// The last marked unit in [from, to) of what is shown; npos when there is none.
    size_t LastMark(size_t from, size_t to) const;

    static constexpr size_t npos = std::u16string_view::npos;

private:
    void Strip(std::u16string_view text);

    std::u16string storage_;
    std::u16string_view shown_;
    std::vector<size_t> dropped_;  // places in the whole text, ascending
    std::vector<size_t> marks_;    // places in what is shown, ascending
};

}  // namespace vxgui::gdi
