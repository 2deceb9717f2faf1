#include "vxgui/platform/corehlp/Services.h"

#include <span>

#include "vxgui/pixels/Blur.h"
#include "vxgui/pixels/ColorKey.h"
#include "vxgui/pixels/Tint.h"
#include "vxgui/platform/memory.h"

namespace vxgui::corehlp {

namespace {

constexpr int32_t kPixelBytes = sizeof(ARGB);

/// A block of pixels as a caller tells it: the pixels, or why there are none.
struct Block {
    Status status = kDone;
    std::span<ARGB> pixels;
};

Block BlockOf(void* bits, int64_t byteCount) {
    if (byteCount < kPixelBytes || byteCount > INT32_MAX) return {kBadSize, {}};
    if (!bits) return {kNoBits, {}};
    const auto count = static_cast<size_t>(byteCount / kPixelBytes);
    if (kernel::IsBadWritePtr(bits, count * kPixelBytes)) return {kBitsUnwritable, {}};
    return {kDone, {static_cast<ARGB*>(bits), count}};
}

Block PictureOf(void* bits, int32_t width, int32_t height) {
    if (width < 1 || height < 1 || int64_t{width} * height > INT32_MAX / kPixelBytes) {
        return {kBadSize, {}};
    }
    return BlockOf(bits, int64_t{width} * height * kPixelBytes);
}

}  // namespace

int32_t Blur(void* bits, int32_t width, int32_t height, int32_t blurWidth, int32_t blurHeight,
             int32_t useColor, int32_t color) {
    const auto [status, pixels] = PictureOf(bits, width, height);
    if (status != kDone) return status;
    vxgui::Blur(pixels, width, {0, 0, width - 1, height - 1}, MeanKernel(blurWidth),
                MeanKernel(blurHeight));
    if (useColor) Tint(pixels, static_cast<uint32_t>(color));
    return kDone;
}

int32_t SetTransColor(void* bits, int32_t color, int32_t byteCount, int32_t matchAlpha,
                      int32_t otherAlpha, int32_t keep) {
    const auto [status, pixels] = BlockOf(bits, byteCount);
    if (status != kDone) return status;
    std::optional<uint8_t> other;
    if (!keep) other = static_cast<uint8_t>(otherAlpha);
    SetAlphaByKey(pixels, static_cast<uint32_t>(color), static_cast<uint8_t>(matchAlpha), other);
    return kDone;
}

int32_t MergeTransparent(const void* source, void* destination, int32_t byteCount, int32_t key) {
    const auto [status, pixels] = BlockOf(destination, byteCount);
    if (status != kDone) return status;
    if (!source) return kNoBits;
    if (kernel::IsBadReadPtr(source, pixels.size_bytes())) return kBitsUnreadable;
    MergeByKey({static_cast<const ARGB*>(source), pixels.size()}, pixels,
               static_cast<uint32_t>(key));
    return kDone;
}

int32_t GaussianBlur(void* bits, int32_t zero, int32_t width, int32_t height, int32_t radiusX,
                     int32_t radiusY) {
    return GaussianBlurEx(bits, zero, width, height, radiusX, radiusY, 0, 0, 0, 0);
}

int32_t GaussianBlurEx(void* bits, int32_t zero, int32_t width, int32_t height, int32_t radiusX,
                       int32_t radiusY, int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
    const auto [status, pixels] = PictureOf(bits, width, height);
    if (status != kDone) return status;
    if (zero != 0) return kBitsUnwritable;
    const auto box = PixelBox::Of(width, height, x1, y1, x2, y2);
    if (!box) return kBadSize;
    vxgui::Blur(pixels, width, *box, GaussianKernel(radiusX), GaussianKernel(radiusY));
    return kDone;
}

void* ServiceAddress(intptr_t number) {
    switch (number) {
        case kBlur:
            return reinterpret_cast<void*>(&Blur);
        case kSetTransColor:
            return reinterpret_cast<void*>(&SetTransColor);
        case kMergeTransparent:
            return reinterpret_cast<void*>(&MergeTransparent);
        case kGaussianBlur:
            return reinterpret_cast<void*>(&GaussianBlur);
        case kGaussianBlurEx:
            return reinterpret_cast<void*>(&GaussianBlurEx);
        default:
            return nullptr;
    }
}

}  // namespace vxgui::corehlp
