#include "vxgui/platform/gdi/Rop3.h"

#include <gtest/gtest.h>

namespace vxgui::gdi {
namespace {

uint32_t BitByBit(uint32_t code, uint32_t p, uint32_t s, uint32_t d) {
    uint32_t result = 0;
    for (int bit = 0; bit < 32; ++bit) {
        const uint32_t row = (p >> bit & 1) * 4 + (s >> bit & 1) * 2 + (d >> bit & 1);
        result |= (code >> row & 1) << bit;
    }
    return result;
}

TEST(Rop3, All256CodesFollowTheirTruthTable) {
    // Every combination of the three bits stands in these words.
    const uint32_t p[] = {0xF0F0F0F0, 0x12345678, 0xFFFF0000};
    const uint32_t s[] = {0xCCCCCCCC, 0x9ABCDEF0, 0x00FFFF00};
    const uint32_t d[] = {0xAAAAAAAA, 0x0F1E2D3C, 0x0000FFFF};
    for (uint32_t code = 0; code < 256; ++code) {
        uint32_t result[] = {d[0], d[1], d[2]};
        Rop3(code << 16).Apply(p, s, result, 3);
        for (size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(result[i], BitByBit(code, p[i], s[i], d[i])) << "code " << code;
        }
    }
}

TEST(Rop3, KnowsWhichOperandsItUses) {
    for (uint32_t code = 0; code < 256; ++code) {
        const Rop3 rop(code << 16);
        bool p = false;
        bool s = false;
        bool d = false;
        for (uint32_t row = 0; row < 8; ++row) {
            const auto bit = [&](uint32_t at) { return code >> at & 1; };
            p |= bit(row) != bit(row ^ 4);
            s |= bit(row) != bit(row ^ 2);
            d |= bit(row) != bit(row ^ 1);
        }
        EXPECT_EQ(rop.UsesPattern(), p) << "code " << code;
        EXPECT_EQ(rop.UsesSource(), s) << "code " << code;
        EXPECT_EQ(rop.UsesDestination(), d) << "code " << code;
    }
}

TEST(Rop3, TheNamedOperationsDoWhatTheirNamesSay) {
    const uint32_t p = 0xF0F0F0F0;
    const uint32_t s = 0xCCCCCCCC;
    const uint32_t d = 0xAAAAAAAA;
    const struct {
        DWORD rop;
        uint32_t result;
    } rows[] = {
        {SRCCOPY, s},         {SRCPAINT, s | d}, {SRCAND, s & d},         {SRCINVERT, s ^ d},
        {SRCERASE, s & ~d},   {NOTSRCCOPY, ~s},  {NOTSRCERASE, ~(s | d)}, {MERGECOPY, s & p},
        {MERGEPAINT, ~s | d}, {PATCOPY, p},      {PATPAINT, p | ~s | d},  {PATINVERT, p ^ d},
        {DSTINVERT, ~d},      {BLACKNESS, 0},    {WHITENESS, 0xFFFFFFFF}};
    for (const auto& row : rows) {
        uint32_t result = d;
        Rop3(row.rop).Apply(&p, &s, &result, 1);
        EXPECT_EQ(result, row.result) << std::hex << row.rop;
    }
}

TEST(Rop3, FlagsAboveTheCodeAreIgnored) {
    constexpr DWORD kNoMirror = 0x80000000;
    constexpr DWORD kCaptureLayers = 0x40000000;
    EXPECT_EQ(Rop3(SRCCOPY | kNoMirror | kCaptureLayers).Code(), 0xCC);
}

}  // namespace
}  // namespace vxgui::gdi
