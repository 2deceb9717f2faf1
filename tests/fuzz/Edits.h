#pragma once

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

namespace vxgui::fuzz {

/// Makes small random changes to bytes; a seed always gives the same ones.
class Editor {
public:
    explicit Editor(uint32_t seed) : random_(seed) {}

    /// The bytes with one to six changes; with `text`, more of them are such as authors make.
    std::string Edit(std::string bytes, bool text) {
        for (size_t changes = 1 + Below(6); changes > 0; --changes)
            text&& Below(2) == 0 ? EditText(bytes) : EditBytes(bytes);
        return bytes;
    }
    size_t Below(size_t end) { return end == 0 ? 0 : random_() % end; }

private:
    void EditBytes(std::string& bytes) {
        if (bytes.empty()) return;
        const size_t at = Below(bytes.size()), size = std::min(1 + Below(24), bytes.size() - at);
        switch (Below(5)) {
            case 0:
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << Below(8)));
                return;
            case 1:
                bytes[at] = static_cast<char>(Below(256));
                return;
            case 2:
                bytes.erase(at, size);
                return;
            case 3:
                bytes.insert(Below(bytes.size()), bytes.substr(at, size));
                return;
            default:
                bytes.replace(at, size, size, "\xFF\0\x7F\x80"[Below(4)]);
        }
    }

    void EditText(std::string& bytes) {
        static const std::string kPieces[] = {
            "0",          "-1",    "1", "255",  "256",        "999999999", "-2147483648",
            "2147483647", "1e300", ",", ",,,,", "=",          "[",         "]",
            "\n",         "\r",    ";", "\"",   "&hFFFFFFFF", "0x",        "\xEF\xBB\xBF"};
        const std::string& piece = kPieces[Below(std::size(kPieces))];
        const size_t value = bytes.find('=', Below(bytes.size() + 1));
        if (value == std::string::npos || Below(4) == 0)
            bytes.insert(Below(bytes.size() + 1), piece);
        else
            bytes.replace(value + 1, std::min(bytes.find('\n', value), bytes.size()) - value - 1,
                          piece);
    }

    std::mt19937 random_;
};

}  // namespace vxgui::fuzz
