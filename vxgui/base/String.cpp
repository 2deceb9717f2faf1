#include "vxgui/base/String.h"

#include "vxgui/base/Utf.h"

namespace vxgui {
String::String(std::string_view utf8) : units_(Utf16FromUtf8(utf8)) {}

String String::FromInt(int64_t value) { return std::to_string(value); }

std::string String::Utf8() const { return Utf8FromUtf16(units_); }

String String::Right(size_t count) const {
    return view().substr(count < size() ? size() - count : 0);
}

String String::Mid(size_t start, size_t count) const {
    return start < size() ? String(view().substr(start, count)) : String();
}

String String::Trim() const {
    const size_t first = units_.find_first_not_of(u' ');
    if (first == npos) return {};
    return Mid(first, units_.find_last_not_of(u' ') - first + 1);
}

std::vector<String> String::Split(char16_t separator) const {
    std::vector<String> parts;
    size_t start = 0;
    for (size_t at = Find(separator); at != npos; at = Find(separator, start)) {
        parts.push_back(Mid(start, at - start));
        start = at + 1;
    }
    parts.push_back(Mid(start));
    return parts;
}

}  // namespace vxgui
