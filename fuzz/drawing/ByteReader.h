#pragma once

#include <cstring>
#include <string>

#include "fuzz/Fuzz.h"

namespace vxgui::fuzz {

/// Takes values off the front of an input; past its end they are 0.
class ByteReader {
public:
    explicit ByteReader(Input input) : input_(input) {}

    template <class T>
    T Take() {
        T value{};
        const size_t size = std::min(sizeof value, input_.size());
        std::memcpy(&value, input_.data(), size);
        input_ = input_.subspan(size);
        return value;
    }
    /// A number from -8 to 247: the near outside of a small picture, its inside, and beyond.
    int32_t Coordinate() { return Take<uint8_t>() - 8; }
    std::u16string Text(size_t most) {
        std::u16string text(std::min(most, input_.size() / 2), u'\0');
        for (char16_t& unit : text) unit = Take<char16_t>();
        return text;
    }
    bool AtEnd() const { return input_.empty(); }

private:
    Input input_;
};

}  // namespace vxgui::fuzz
