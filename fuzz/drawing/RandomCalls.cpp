#include "fuzz/drawing/RandomCalls.h"

#include <random>

#include "fuzz/drawing/ExactCalls.h"

namespace vxgui::fuzz {
namespace {

// The bytes of a seed, the same everywhere: the generator's numbers are part of the language.
class SeededBytes {
public:
    explicit SeededBytes(uint32_t seed) : random_(seed) {}

    Input Next() {
        for (uint8_t& byte : bytes_) byte = static_cast<uint8_t>(random_() >> 24);
        return bytes_;
    }

private:
    std::mt19937 random_;
    uint8_t bytes_[24];
};

}  // namespace

uint32_t ChecksumAfter(int calls) {
    ExactCalls drawing;
    SeededBytes bytes(2026);
    for (int i = 0; i < calls; ++i) {
        ByteReader reader(bytes.Next());
        drawing.Next(reader);
    }
    return drawing.Checksum();
}

}  // namespace vxgui::fuzz
