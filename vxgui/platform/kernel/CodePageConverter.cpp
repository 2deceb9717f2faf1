#include "vxgui/platform/kernel/CodePageConverter.h"

#include <bit>
#include <cerrno>
#include <cstring>
#include <utility>

namespace vxgui::kernel {

namespace {

constexpr const char* kUtf16 = std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";

std::string_view Bytes(std::u16string_view text) {
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t)};
}

std::u16string Units(const std::string& bytes) {
    std::u16string units(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(char16_t));
    return units;
}

/// The bytes of the character that the text starts with.
size_t CharacterSize(std::string_view utf16) {
    const std::u16string start = Units(std::string(utf16.substr(0, 2 * sizeof(char16_t))));
    const auto in = [&](size_t at, int first) { return (start[at] & 0xFC00) == first; };
    const bool pair = start.size() == 2 && in(0, 0xD800) && in(1, 0xDC00);
    return (pair ? 2 : 1) * sizeof(char16_t);
}

}  // namespace

CodePageConverter CodePageConverter::FromPage(const std::string& page) {
    return CodePageConverter(iconv_open(kUtf16, page.c_str()));
}

CodePageConverter CodePageConverter::ToPage(const std::string& page) {
    return CodePageConverter(iconv_open(page.c_str(), kUtf16));
}

CodePageConverter::CodePageConverter(CodePageConverter&& other) noexcept
    : handle_(std::exchange(other.handle_, Closed())) {}

CodePageConverter& CodePageConverter::operator=(CodePageConverter&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

CodePageConverter::~CodePageConverter() {
    if (IsOpen()) iconv_close(handle_);
}

std::u16string CodePageConverter::Decode(std::string_view bytes) {
    std::string output;
    Run(bytes, output);
    while (!bytes.empty()) {
        output += Bytes(u"\uFFFD");
        bytes.remove_prefix(1);
        Run(bytes, output);
    }
    Finish(output);
    return Units(output);
}

std::string CodePageConverter::Encode(std::u16string_view text) {
    std::string_view input = Bytes(text);
    std::string output;
    Run(input, output);
    while (!input.empty()) {
        std::string_view mark = Bytes(u"?");
        Run(mark, output);
        input.remove_prefix(CharacterSize(input));
        Run(input, output);
    }
    Finish(output);
    return output;
}

void CodePageConverter::Run(std::string_view& input, std::string& output) {
    char block[1024];
    char* from = const_cast<char*>(input.data());
    size_t left = input.size();
    bool full = true;
    while (left != 0 && full) {
        char* to = block;
        size_t room = sizeof block;
        const size_t done = iconv(handle_, &from, &left, &to, &room);
        full = done == static_cast<size_t>(-1) && errno == E2BIG;
        output.append(block, to);
    }
    input.remove_prefix(input.size() - left);
}

void CodePageConverter::Finish(std::string& output) {
    char block[64];
    char* to = block;
    size_t room = sizeof block;
    iconv(handle_, nullptr, nullptr, &to, &room);
    output.append(block, to);
}

}  // namespace vxgui::kernel
