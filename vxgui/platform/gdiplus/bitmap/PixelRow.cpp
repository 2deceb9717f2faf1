#include "vxgui/platform/gdiplus/bitmap/PixelRow.h"

#include "vxgui/platform/gdiplus/bitmap/PixelCodes.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"

namespace vxgui::gdiplus {
namespace {

template <class Code>
void ReadAll(const uint8_t* row, size_t x, std::span<ARGB> to) {
    const uint8_t* from = row + x * Code::kBytes;
    for (ARGB& color : to) {
        color = Code::Read(from);
        from += Code::kBytes;
    }
}

template <class Code>
void WriteAll(uint8_t* row, size_t x, std::span<const ARGB> from) {
    uint8_t* to = row + x * Code::kBytes;
    for (const ARGB color : from) {
        Code::Write(to, color);
        to += Code::kBytes;
    }
}

struct RowCode {
    PixelFormat format;
    void (*read)(const uint8_t* row, size_t x, std::span<ARGB> to);
    void (*write)(uint8_t* row, size_t x, std::span<const ARGB> from);
};

template <class Code>
constexpr RowCode Coded(PixelFormat format) {
    return {format, ReadAll<Code>, WriteAll<Code>};
}

constexpr RowCode kRowCodes[] = {
    Coded<codes::Bits32<true, false>>(PixelFormat32bppARGB),
    Coded<codes::Bits32<true, true>>(PixelFormat32bppPARGB),
    Coded<codes::Bits32<false, false>>(PixelFormat32bppRGB),
    Coded<codes::Bits24>(PixelFormat24bppRGB),
    Coded<codes::Bits16<false, 5>>(PixelFormat16bppRGB555),
    Coded<codes::Bits16<false, 6>>(PixelFormat16bppRGB565),
    Coded<codes::Bits16<true, 5>>(PixelFormat16bppARGB1555),
    Coded<codes::Gray16>(PixelFormat16bppGrayScale),
    Coded<codes::Linear<false, false>>(PixelFormat48bppRGB),
    Coded<codes::Linear<true, false>>(PixelFormat64bppARGB),
    Coded<codes::Linear<true, true>>(PixelFormat64bppPARGB),
    Coded<codes::Cmyk>(PixelFormat32bppCMYK),
};

const RowCode* CodeOf(PixelFormat format) {
    for (const RowCode& code : kRowCodes) {
        if (code.format == format) return &code;
    }
    return nullptr;
}

int ShiftOf(int bits, size_t x) {
    return 8 - bits - static_cast<int>(x * static_cast<size_t>(bits) % 8);
}
size_t ByteOf(int bits, size_t x) { return x * static_cast<size_t>(bits) / 8; }

uint8_t IndexAt(int bits, const uint8_t* row, size_t x) {
    return static_cast<uint8_t>(row[ByteOf(bits, x)] >> ShiftOf(bits, x) & ((1 << bits) - 1));
}

void PutIndex(int bits, uint8_t* row, size_t x, uint8_t index) {
    uint8_t& byte = row[ByteOf(bits, x)];
    const int mask = (1 << bits) - 1, shift = ShiftOf(bits, x);
    byte = static_cast<uint8_t>((byte & ~(mask << shift)) | (index & mask) << shift);
}

}  // namespace

bool IsPixelFormat(PixelFormat format) {
    return format == PixelFormat1bppIndexed || format == PixelFormat4bppIndexed ||
           format == PixelFormat8bppIndexed || CodeOf(format);
}

void ReadIndexes(int bits, const uint8_t* row, size_t x, std::span<uint8_t> to) {
    for (uint8_t& index : to) index = IndexAt(bits, row, x++);
}

void WriteIndexes(int bits, uint8_t* row, size_t x, std::span<const uint8_t> from) {
    for (const uint8_t index : from) PutIndex(bits, row, x++, index);
}

void ReadPixels(PixelFormat format, const uint8_t* row, size_t x, std::span<ARGB> to,
                const Palette& palette) {
    if (const RowCode* code = CodeOf(format)) return code->read(row, x, to);
    const int bits = BitsPerPixel(format);
    for (ARGB& color : to) color = palette.At(IndexAt(bits, row, x++));
}

void WritePixels(PixelFormat format, uint8_t* row, size_t x, std::span<const ARGB> from,
                 PaletteMatcher* matcher) {
    if (const RowCode* code = CodeOf(format)) return code->write(row, x, from);
    const int bits = BitsPerPixel(format);
    for (const ARGB color : from) PutIndex(bits, row, x++, matcher->Nearest(color));
}

}  // namespace vxgui::gdiplus
