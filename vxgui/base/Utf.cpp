#include "vxgui/base/Utf.h"

#include <cstdint>
#include <cstring>

namespace vxgui {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
    char32_t code;
    size_t length;
    bool good;
};

size_t SequenceLength(uint8_t lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

// The second byte of a sequence has a narrower range after some lead bytes (Unicode, table 3-7).
bool IsSecondByte(uint8_t lead, uint8_t byte) {
    const uint8_t low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const uint8_t high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return byte >= low && byte <= high;
}

Decoded DecodeUtf8(std::string_view text) {
    const auto lead = static_cast<uint8_t>(text[0]);
    const size_t length = SequenceLength(lead);
    if (length == 1) return {lead, 1, true};
    if (length == 0) return {kReplacement, 1, false};
    char32_t code = lead & (0x7F >> length);
    for (size_t i = 1; i < length; ++i) {
        const uint8_t byte = i < text.size() ? static_cast<uint8_t>(text[i]) : 0;
        const bool good = i == 1 ? IsSecondByte(lead, byte) : (byte & 0xC0) == 0x80;
        if (!good) return {kReplacement, i, false};
        code = (code << 6) | (byte & 0x3F);
    }
    return {code, length, true};
}

// How many bytes from the first on are ASCII: eight at a time, as nearly all text is.
size_t AsciiLength(std::string_view text) {
    size_t length = 0;
    for (uint64_t bytes; length + sizeof bytes <= text.size(); length += sizeof bytes) {
        std::memcpy(&bytes, text.data() + length, sizeof bytes);
        if (bytes & 0x8080808080808080u) break;
    }
    while (length < text.size() && static_cast<uint8_t>(text[length]) < 0x80) ++length;
    return length;
}

void AppendUtf16(std::u16string& text, char32_t code) {
    if (code < 0x10000) {
        text += static_cast<char16_t>(code);
        return;
    }
    code -= 0x10000;
    text += static_cast<char16_t>(0xD800 + (code >> 10));
    text += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
}

bool IsHigh(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool IsLow(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

}  // namespace

void AppendUtf8(std::string& text, char32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    const int extra = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    text += static_cast<char>((0xFF00 >> (extra + 1) & 0xFF) | (code >> (6 * extra)));
    for (int i = extra - 1; i >= 0; --i) text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3F));
}

std::u16string Utf16FromUtf8(std::string_view utf8) {
    size_t ascii = AsciiLength(utf8);
    std::u16string text(utf8.begin(), utf8.begin() + ascii);
    for (utf8.remove_prefix(ascii); !utf8.empty(); utf8.remove_prefix(ascii)) {
        const Decoded decoded = DecodeUtf8(utf8);
        AppendUtf16(text, decoded.code);
        utf8.remove_prefix(decoded.length);
        ascii = AsciiLength(utf8);
        text.append(utf8.begin(), utf8.begin() + ascii);
    }
    return text;
}

std::string Utf8FromUtf16(std::u16string_view utf16) {
    std::string text;
    text.reserve(utf16.size());
    for (size_t i = 0; i < utf16.size(); ++i) {
        char32_t code = utf16[i];
        if (IsHigh(utf16[i]) && i + 1 < utf16.size() && IsLow(utf16[i + 1])) {
            code = 0x10000 + ((code - 0xD800) << 10) + (utf16[++i] - 0xDC00);
        } else if (IsHigh(utf16[i]) || IsLow(utf16[i])) {
            code = kReplacement;
        }
        AppendUtf8(text, code);
    }
    return text;
}

bool IsUtf8(std::string_view bytes) {
    while (bytes.remove_prefix(AsciiLength(bytes)), !bytes.empty()) {
        const Decoded decoded = DecodeUtf8(bytes);
        if (!decoded.good) return false;
        bytes.remove_prefix(decoded.length);
    }
    return true;
}

}  // namespace vxgui
