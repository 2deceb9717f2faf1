#include "vxgui/base/VariantValue.h"

#include <charconv>

#include "vxgui/base/Error.h"
#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"

namespace vxgui {

namespace {

[[noreturn]] void RaiseMismatch(const char* source) {
    throw Error(ErrorNumber::TypeMismatch, source, "Type mismatch");
}

/// The number that a text is as a whole, its grouping commas left out.
double NumberOf(const String& text, const char* source) {
    if (!IsNumeric(text)) RaiseMismatch(source);
    std::u16string digits = text.units();
    std::erase(digits, u',');
    return LeadingNumber(String(std::move(digits)));
}

String TextOf(double value) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value,
                                   std::chars_format::general, 15);  // what a double surely holds
    return String(std::string_view(digits, static_cast<size_t>(end.ptr - digits)));
}

}  // namespace

int32_t IntegerFrom(const Variant& value, const char* source) {
    if (const auto* number = value.As<int32_t>()) return *number;
    if (const auto* truth = value.As<bool>()) return *truth ? -1 : 0;
    if (const auto* single = value.As<float>()) return RoundHalfEvenChecked(*single, source);
    if (const auto* number = value.As<double>()) return RoundHalfEvenChecked(*number, source);
    if (const auto* text = value.As<String>()) {
        return RoundHalfEvenChecked(NumberOf(*text, source), source);
    }
    if (!value.IsEmpty()) RaiseMismatch(source);
    return 0;
}

uint8_t ByteFrom(const Variant& value, const char* source) {
    if (const auto* truth = value.As<bool>()) return *truth ? 255 : 0;
    return RoundHalfEvenChecked<uint8_t>(IntegerFrom(value, source), source);
}

String TextFrom(const Variant& value, const char* source) {
    if (const auto* text = value.As<String>()) return *text;
    if (const auto* number = value.As<int32_t>()) return String::FromInt(*number);
    if (const auto* truth = value.As<bool>()) return *truth ? "True" : "False";
    if (const auto* single = value.As<float>()) return TextOf(*single);
    if (const auto* number = value.As<double>()) return TextOf(*number);
    if (!value.IsEmpty()) RaiseMismatch(source);
    return {};
}

}  // namespace vxgui
