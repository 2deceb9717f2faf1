#pragma once

#include <algorithm>
#include <span>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::kernel {

/// Bytes of a file that nobody vouches for: what lies outside reads as zeros and as nothing.
class ByteSpan {
public:
    ByteSpan() = default;
    ByteSpan(const uint8_t* data, size_t size) : bytes_(data, size) {}
    explicit ByteSpan(std::span<const uint8_t> bytes) : bytes_(bytes) {}

    size_t size() const { return bytes_.size(); }
    const uint8_t* data() const { return bytes_.data(); }
    bool Has(uint64_t at, uint64_t count) const { return at <= size() && count <= size() - at; }
    /// Up to `count` bytes from `at`; fewer where the span ends.
    ByteSpan From(uint64_t at, uint64_t count = UINT64_MAX) const {
        if (at > size()) return {};
        const size_t start = static_cast<size_t>(at);
        return ByteSpan(bytes_.subspan(start, std::min<uint64_t>(count, size() - start)));
    }
    template <std::unsigned_integral T>
    T Read(uint64_t at) const {
        return Has(at, sizeof(T)) ? LoadLittle<T>(data() + at) : T{};
    }
    uint16_t Word(uint64_t at) const { return Read<uint16_t>(at); }
    uint32_t Dword(uint64_t at) const { return Read<uint32_t>(at); }

private:
    std::span<const uint8_t> bytes_;
};

}  // namespace vxgui::kernel
