#include "vxgui/surface/cAlphaDIBSection.h"

#include <algorithm>
#include <cstdlib>

#include "vxgui/base/Rounding.h"
#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/modUtilities.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/surface/BitmapMemory.h"

namespace vxgui {

namespace {

void SetBit(uint32_t& flags, uint32_t bit, bool value) {
    flags = value ? flags | bit : flags & ~bit;
}

}  // namespace

cAlphaDIBSection::cAlphaDIBSection() {
    if (!gTrace) Main();
}

cAlphaDIBSection::~cAlphaDIBSection() { Empty(); }

bool cAlphaDIBSection::UseDrawDib() const { return (flags_ & kUseDrawDib) && gDrawDib; }

void cAlphaDIBSection::UseDrawDib(bool value) { SetBit(flags_, kUseDrawDib, value); }

bool cAlphaDIBSection::UseMsImag32() const { return flags_ & kUseMsImag32; }

void cAlphaDIBSection::UseMsImag32(bool value) { SetBit(flags_, kUseMsImag32, value); }

int32_t cAlphaDIBSection::BytesPerScanLine() const { return WrapMul(Width(), 4); }

void* cAlphaDIBSection::LiveBits() const { return MemorySize() ? bits_ : nullptr; }

size_t cAlphaDIBSection::MemorySize() const {
    // Hosts may delete the bitmap under the pointer, and a stored header may describe one of
    // another depth: what counts is the memory that is there now.
    const std::span<uint8_t> memory = BitmapMemory(bitsOwner_);
    return bits_ && memory.data() == bits_ ? memory.size() : 0;
}

std::span<ARGB> cAlphaDIBSection::Pixels() const {
    if (Width() < 1 || Height() < 1) return {};
    const size_t asked = static_cast<size_t>(Width()) * static_cast<size_t>(Height());
    return {static_cast<ARGB*>(bits_), std::min(asked, MemorySize() / sizeof(ARGB))};
}

ARGBArray cAlphaDIBSection::GetARGBArray() {
    const std::span<ARGB> pixels = Pixels();
    if (pixels.empty()) return {};
    const auto rows = pixels.size() / static_cast<size_t>(Width());
    return {pixels.data(), static_cast<int32_t>(rows), Width()};
}

Variant cAlphaDIBSection::DestroyARGBArray(ARGBArray& DibBitsArray) {
    DibBitsArray = {};
    return {};
}

void cAlphaDIBSection::CopyRows(const cAlphaDIBSection& source, int32_t x, int32_t firstRow) {
    const std::span<const ARGB> from = source.Pixels();
    const ARGBArray to = GetARGBArray();
    const auto width = static_cast<size_t>(Width());
    const auto stride = static_cast<size_t>(source.Width());
    for (int32_t row = 0; row < to.Rows(); ++row) {
        const size_t start = static_cast<size_t>(firstRow + row) * stride + static_cast<size_t>(x);
        if (start + width > from.size()) return;
        std::ranges::copy(from.subspan(start, width), to.Run(row, 0, Width() - 1).begin());
    }
}

}  // namespace vxgui
