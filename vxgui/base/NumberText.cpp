#include "vxgui/base/NumberText.h"

#include <charconv>
#include <cstdint>
#include <string>

#include "vxgui/base/Blanks.h"

namespace vxgui {
namespace {

enum class Commas { kEnd, kGroup };

bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

// The value of a hexadecimal digit, 16 for anything else.
uint32_t HexDigit(char16_t unit) {
    if (IsDigit(unit)) return unit - u'0';
    const char16_t lower = unit | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10u : 16u;
}

// Walks over a text; what lies behind its end reads as NUL, which is part of no number.
class Walker {
public:
    explicit Walker(std::u16string_view text) : text_(text) {}

    size_t at() const { return at_; }
    void Return(size_t at) { at_ = at; }
    char16_t Peek(size_t ahead = 0) const {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : u'\0';
    }
    bool Skip(char16_t unit) {
        const bool here = Peek() == unit && at_ < text_.size();
        at_ += here;
        return here;
    }
    bool SkipSign() { return Skip(u'+') || Skip(u'-'); }
    size_t SkipDigits(Commas commas) {
        const size_t start = at_;
        while (IsDigit(Peek()) || (commas == Commas::kGroup && IsGroupComma())) ++at_;
        return at_ - start;
    }

private:
    bool IsGroupComma() const {
        return Peek() == u',' && at_ > 0 && IsDigit(text_[at_ - 1]) && IsDigit(Peek(1));
    }

    std::u16string_view text_;
    size_t at_ = 0;
};

void SkipExponent(Walker& walker) {
    const size_t start = walker.at();
    if (!walker.Skip(u'e') && !walker.Skip(u'E')) return;
    walker.SkipSign();
    if (walker.SkipDigits(Commas::kEnd) == 0) walker.Return(start);
}

// The length of the decimal number that `text` begins with, 0 if there is none.
size_t DecimalLength(std::u16string_view text, Commas commas) {
    Walker walker(text);
    walker.SkipSign();
    size_t digits = walker.SkipDigits(commas);
    if (walker.Skip(u'.')) digits += walker.SkipDigits(Commas::kEnd);
    if (digits == 0) return 0;
    SkipExponent(walker);
    return walker.at();
}

// The digits behind "&h", as far as they go; empty when the text does not begin so.
std::u16string_view HexDigits(std::u16string_view text) {
    if (text.size() < 2 || text[0] != u'&' || (text[1] | 0x20) != u'h') return {};
    text.remove_prefix(2);
    size_t count = 0;
    while (count < text.size() && HexDigit(text[count]) < 16) ++count;
    return text.substr(0, count);
}

double HexValue(std::u16string_view digits) {
    uint32_t bits = 0;
    for (const char16_t digit : digits) bits = bits << 4 | HexDigit(digit);
    return digits.size() <= 4 ? static_cast<int16_t>(bits) : static_cast<int32_t>(bits);
}

double DecimalValue(std::u16string_view number) {
    std::string ascii(number.begin(), number.end());
    if (ascii.starts_with('+')) ascii.erase(0, 1);  // from_chars knows no plus sign
    double value = 0;
    const auto [end, error] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    return error == std::errc() ? value : 0;
}

}  // namespace

double LeadingNumber(const String& text) {
    const std::u16string_view number = TrimLeadingBlanks(text.view());
    if (const auto digits = HexDigits(number); !digits.empty()) return HexValue(digits);
    return DecimalValue(number.substr(0, DecimalLength(number, Commas::kEnd)));
}

bool IsNumeric(const String& text) {
    const std::u16string_view number = TrimBlanks(text.view());
    if (number.empty()) return false;
    if (number[0] == u'&')
        return HexDigits(number).size() + 2 == number.size() && number.size() > 2;
    return DecimalLength(number, Commas::kGroup) == number.size();
}

}  // namespace vxgui
