#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vxgui/base/Export.h"

namespace vxgui {

/// UTF-16 text; lengths and positions count 16-bit units, positions from 0. It is made
/// implicitly from UTF-8 (malformed bytes become U+FFFD) and from UTF-16.
class VXPLATFORM_API String {
public:
    String() = default;
    String(const char* utf8) : String(std::string_view(utf8 ? utf8 : "")) {}
    String(std::string_view utf8);
    String(const std::string& utf8) : String(std::string_view(utf8)) {}
    String(const char16_t* text) : units_(text ? text : u"") {}
    String(std::u16string_view text) : units_(text) {}
    String(std::u16string text) : units_(std::move(text)) {}

    static String FromInt(int64_t value);

    bool empty() const { return units_.empty(); }
    size_t size() const { return units_.size(); }
    const char16_t* data() const { return units_.data(); }
    char16_t operator[](size_t index) const { return units_[index]; }
    std::u16string_view view() const { return units_; }
    const std::u16string& units() const { return units_; }
    std::string Utf8() const;

    /// Unpaired surrogates become U+FFFD in `Utf8`; nothing else is lost.
    String Left(size_t count) const { return view().substr(0, count); }
    String Right(size_t count) const;
    String Mid(size_t start, size_t count = npos) const;
    /// Blanks (U+0020) alone are cut, as in the define files.
    String Trim() const;
    /// Folds ASCII and, through simple case folding, the rest of the Latin, Greek and Cyrillic
    /// letters.
    String Lower() const;
    size_t Find(char16_t unit, size_t from = 0) const { return units_.find(unit, from); }
    std::vector<String> Split(char16_t separator) const;
    bool EqualsNoCase(const String& other) const { return Lower() == other.Lower(); }

    String& operator+=(const String& other) {
        units_ += other.units_;
        return *this;
    }
    friend String operator+(String a, const String& b) { return a += b; }
    friend bool operator==(const String& a, const String& b) { return a.units_ == b.units_; }
    friend auto operator<=>(const String& a, const String& b) { return a.units_ <=> b.units_; }

    static constexpr size_t npos = std::u16string::npos;

private:
    std::u16string units_;
};

}  // namespace vxgui

template <>
struct std::hash<vxgui::String> {
    size_t operator()(const vxgui::String& text) const noexcept {
        return std::hash<std::u16string_view>()(text.view());
    }
};
