#include "vxgui/platform/core7/define/Decoding.h"

#include "vxgui/base/Utf.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::core7 {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";

DecodedText FromMarkedUtf8(std::string_view bytes) {
    return {Utf16FromUtf8(bytes), !IsUtf8(bytes)};
}

// `low` is the place of the low byte in each pair; a single byte at the end is dropped.
DecodedText FromUtf16(std::string_view bytes, size_t low) {
    DecodedText decoded{std::u16string(bytes.size() / 2, u'\0'), bytes.size() % 2 != 0};
    for (size_t i = 0; i < decoded.text.size(); ++i) {
        const auto lowByte = static_cast<uint8_t>(bytes[2 * i + low]);
        const auto highByte = static_cast<uint8_t>(bytes[2 * i + 1 - low]);
        decoded.text[i] = static_cast<char16_t>(highByte << 8 | lowByte);
    }
    return decoded;
}

DecodedText FromUnmarked(std::string_view bytes) {
    if (IsUtf8(bytes)) return {Utf16FromUtf8(bytes), false};
    return {kernel::TextFromAnsi(bytes).units(), false};
}

bool SkipMark(std::string_view& bytes, std::string_view mark) {
    const bool marked = bytes.starts_with(mark);
    if (marked) bytes.remove_prefix(mark.size());
    return marked;
}

}  // namespace

DecodedText DecodeDefineBytes(const ByteArray& bytes) {
    std::string_view rest(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (SkipMark(rest, kUtf8Mark)) return FromMarkedUtf8(rest);
    if (SkipMark(rest, kUtf16LittleMark)) return FromUtf16(rest, 0);
    if (SkipMark(rest, kUtf16BigMark)) return FromUtf16(rest, 1);
    return FromUnmarked(rest);
}

}  // namespace vxgui::core7
