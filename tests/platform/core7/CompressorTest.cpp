#include <gtest/gtest.h>

#include <random>

#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

constexpr uint8_t kMagic[] = {0x28, 0xB5, 0x2F, 0xFD};  // RFC 8878, section 3.1.1

ByteArray Noise(size_t size, uint32_t seed) {
    std::mt19937 random(seed);
    ByteArray bytes(size);
    for (uint8_t& byte : bytes) byte = static_cast<uint8_t>(random() >> 24);
    return bytes;
}

// A frame whose header claims `content` bytes, followed by one empty raw block.
ByteArray FrameClaiming(uint64_t content) {
    ByteArray frame(std::begin(kMagic), std::end(kMagic));
    frame.push_back(0xE0);  // one segment, eight bytes of content size
    for (int i = 0; i < 8; ++i) frame.push_back(static_cast<uint8_t>(content >> (8 * i)));
    frame.insert(frame.end(), {0x01, 0x00, 0x00});
    return frame;
}

TEST(CompressorTest, WhatIsCompressedComesBack) {
    for (const size_t size : {1u, 60u, 68u, 1000u, 300000u}) {
        const ByteArray bytes = Noise(size, static_cast<uint32_t>(size));
        const ByteArray frame = Compress(bytes);
        EXPECT_EQ(GetSize(frame), size);
        EXPECT_EQ(Decompress(frame), bytes);
    }
}

TEST(CompressorTest, BytesServeForOneFrameAfterTheOther) {
    ByteArray bytes;
    for (const size_t size : {1000u, 10u, 0u, 300000u, 999u}) {
        const ByteArray noise = Noise(size, 5);
        EXPECT_TRUE(Decompress(Compress(noise), &bytes));
        EXPECT_EQ(bytes, noise);
    }
    EXPECT_FALSE(Decompress(Noise(100, 6), &bytes));
}

TEST(CompressorTest, PlainAreasBecomeSmall) {
    const ByteArray bytes(64 << 20);
    const ByteArray frame = Compress(bytes);
    EXPECT_LT(frame.size(), 16384u);
    EXPECT_EQ(GetSize(frame), bytes.size());
    EXPECT_EQ(Decompress(frame), bytes);
}

TEST(CompressorTest, NothingIsAFrameOfNoSize) {
    const ByteArray frame = Compress({});
    EXPECT_EQ(GetSize(frame), 0u);
    EXPECT_EQ(Decompress(frame), ByteArray());
}

TEST(CompressorTest, WhatIsNotCompressedHasSizeZero) {
    const ByteArray surface{'A', 'D', 'I', 'B', 2, 0, 0, 0, 20, 0, 0, 0};
    for (const ByteArray& bytes : {ByteArray(), ByteArray{0}, surface, Noise(1000, 1)}) {
        EXPECT_EQ(GetSize(bytes), 0u);
        EXPECT_FALSE(Decompress(bytes).has_value());
    }
}

TEST(CompressorTest, EveryTruncationFails) {
    const ByteArray frame = Compress(Noise(500, 2));
    for (size_t size = 0; size < frame.size(); ++size) {
        EXPECT_FALSE(Decompress(ByteArray(frame.begin(), frame.begin() + size)).has_value())
            << size;
    }
}

TEST(CompressorTest, TrailingBytesFail) {
    ByteArray frame = Compress(Noise(500, 3));
    frame.push_back(0);
    EXPECT_FALSE(Decompress(frame).has_value());
}

// The checksum of the frame sees what the coding itself lets through.
TEST(CompressorTest, NoChangedByteGivesOtherContent) {
    ByteArray bytes(500);
    for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<uint8_t>(i % 7 * 9);
    const ByteArray frame = Compress(bytes);
    for (size_t at = 0; at < frame.size(); ++at) {
        for (const int change : {0x01, 0x10, 0x80, 0xFF}) {
            ByteArray damaged = frame;
            damaged[at] ^= static_cast<uint8_t>(change);
            const auto read = Decompress(damaged);
            EXPECT_TRUE(!read || *read == bytes) << "byte " << at << " changed by " << change;
        }
    }
}

TEST(CompressorTest, AClaimThatTheFrameCannotHoldTakesNoMemory) {
    for (const uint64_t claim : {uint64_t{1} << 29, uint64_t{1} << 40, ~uint64_t{0} - 2}) {
        EXPECT_EQ(GetSize(FrameClaiming(claim)), 0u);
        EXPECT_FALSE(Decompress(FrameClaiming(claim)).has_value());
    }
}

TEST(CompressorTest, AFrameThatHoldsLessThanItClaimsFails) {
    EXPECT_EQ(GetSize(FrameClaiming(1000)), 1000u);
    EXPECT_FALSE(Decompress(FrameClaiming(1000)).has_value());
}

TEST(CompressorTest, TheHostSetsTheLimitOnClaims) {
    EXPECT_EQ(ApartmentDecompressionLimit(), 1u << 30);
    const ByteArray frame = Compress(ByteArray(100));
    ApartmentDecompressionLimit() = 99;
    EXPECT_EQ(GetSize(frame), 0u);
    EXPECT_FALSE(Decompress(frame).has_value());
    ApartmentDecompressionLimit() = 100;
    EXPECT_EQ(GetSize(frame), 100u);
    EXPECT_TRUE(Decompress(frame).has_value());
    ApartmentDecompressionLimit() = 1u << 30;
}

}  // namespace
}  // namespace vxgui::core7
