#include "vxgui/pixels/Convolution.h"

#include <algorithm>
#include <cmath>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/PixelBox.h"

namespace vxgui {

namespace {

constexpr int32_t kOutside = -1;

/// A weight and the place of its sample beside the pixel.
struct Tap {
    int32_t row, column;
    double weight;
};

/// The taps in the order in which they are added. A weight of 0 changes no sum.
std::vector<Tap> TapsOf(const ConvolutionKernel& kernel) {
    std::vector<Tap> taps;
    if (kernel.Width < 1 || kernel.Height < 1) return taps;
    const int32_t hx = (kernel.Width - 1) / 2, hy = (kernel.Height - 1) / 2;
    const int64_t size = std::min<int64_t>(int64_t{kernel.Width} * kernel.Height,
                                           static_cast<int64_t>(kernel.Weights.size()));
    for (int64_t i = 0; i < size; ++i) {
        const float weight = kernel.Weights[static_cast<size_t>(i)];
        if (weight == 0) continue;
        taps.push_back({static_cast<int32_t>(i / kernel.Width) - hy,
                        static_cast<int32_t>(i % kernel.Width) - hx, weight});
    }
    return taps;
}

/// A double this large has no room for a fraction: adding it rounds, halves to even, and taking
/// it away again leaves the integer. Sums far beyond any channel lose their low digits only.
constexpr double kRounder = 6755399441055744.0;

VXGUI_MULTIVERSION(void, AddRun,
                   (double* sums, const uint8_t* samples, size_t count, double weight)) {
    for (size_t i = 0; i < count; ++i) {
        sums[i] = (sums[i] + samples[i] * weight + kRounder) - kRounder;
    }
}

const uint8_t* BytesOf(const ARGB* pixels) { return reinterpret_cast<const uint8_t*>(pixels); }

uint8_t Clamped(double sum) {
    const double size = std::abs(sum);
    return size < 256 ? static_cast<uint8_t>(static_cast<int32_t>(size)) : 255;
}

/// One convolution of a source into a target.
class Convolution {
public:
    Convolution(const ConvolutionKernel& kernel, std::span<const ARGB> source,
                std::span<ARGB> target, int32_t width)
        : kernel_(kernel),
          taps_(TapsOf(kernel)),
          source_(source.data()),
          target_(target.data()),
          width_(width),
          height_(static_cast<int32_t>(std::min(source.size(), target.size()) /
                                       static_cast<size_t>(width))) {}

    int32_t Height() const { return height_; }

    void Run(PixelBox box) {
        if (kernel_.Mode == ConvolutionCopy) box = CopyBands(box);
        if (box.IsEmpty()) return;
        sums_.resize(static_cast<size_t>(box.right - box.left + 1) * sizeof(ARGB));
        for (int32_t y = box.top; y <= box.bottom; ++y) FilterRow(y, box.left, box.right);
    }

private:
    const ARGB* SourceRow(int32_t y) const { return source_ + int64_t{y} * width_; }
    ARGB* TargetRow(int32_t y) const { return target_ + int64_t{y} * width_; }

    void Copy(int32_t y, int32_t left, int32_t right) const {
        if (left <= right) {
            std::copy(SourceRow(y) + left, SourceRow(y) + right + 1, TargetRow(y) + left);
        }
    }

    /// Copies what the kernel doesn't fit and answers what is left of the box.
    PixelBox CopyBands(const PixelBox& box) const {
        const int64_t hx = (int64_t{kernel_.Width} - 1) / 2;
        const int64_t hy = (int64_t{kernel_.Height} - 1) / 2;
        const auto within = [](int64_t value, int32_t low, int32_t high) {
            return static_cast<int32_t>(std::clamp<int64_t>(value, low, high));
        };
        const PixelBox inner{
            within(hx, box.left, box.right + 1), within(hy, box.top, box.bottom + 1),
            within(width_ - int64_t{kernel_.Width} + hx, box.left - 1, box.right),
            within(height_ - int64_t{kernel_.Height} + hy, box.top - 1, box.bottom)};
        for (int32_t y = box.top; y <= box.bottom; ++y) {
            if (y < inner.top || y > inner.bottom) {
                Copy(y, box.left, box.right);
            } else {
                Copy(y, box.left, std::min(inner.left - 1, box.right));
                Copy(y, std::max(inner.right + 1, box.left), box.right);
            }
        }
        return inner;
    }

    void FilterRow(int32_t y, int32_t left, int32_t right) {
        std::fill(sums_.begin(), sums_.end(), 0.0);
        for (const Tap& tap : taps_) AddTap(tap, y, left, right);
        ARGB* const target = TargetRow(y);
        for (int32_t x = left; x <= right; ++x) {
            const double* sums = Sums(x - left);
            target[x] = {Clamped(sums[0]), Clamped(sums[1]), Clamped(sums[2]), Clamped(sums[3])};
        }
    }

    void AddTap(const Tap& tap, int32_t y, int32_t left, int32_t right) {
        const bool skips = kernel_.Mode == ConvolutionSkip || kernel_.Mode == ConvolutionCopy;
        const int64_t row = int64_t{y} + tap.row;
        if (skips) {
            if (row < 0 || row >= height_) return;
            AddColumns(tap.weight, SourceRow(static_cast<int32_t>(row)), tap.column, left, right);
            return;
        }
        // The column is moved by the row's offset, not by its own: that is meant.
        const ARGB* const samples =
            SourceRow(static_cast<int32_t>(std::clamp<int64_t>(row, 0, height_ - 1)));
        AddColumns(tap.weight, samples, tap.row, left, right);
        for (int32_t x = left; x <= right && int64_t{x} + tap.row < 0; ++x) {
            Add(tap.weight, samples[0], x - left);
        }
        for (int32_t x = right; x >= left && int64_t{x} + tap.row >= width_; --x) {
            Add(tap.weight, samples[width_ - 1], x - left);
        }
    }

    /// Adds the samples `offset` beside the pixels of a row, as far as they lie in the picture.
    void AddColumns(double weight, const ARGB* samples, int32_t offset, int32_t left,
                    int32_t right) {
        const int64_t first = std::max<int64_t>(left, -int64_t{offset});
        const int64_t last = std::min<int64_t>(right, int64_t{width_} - 1 - offset);
        if (first > last) return;
        AddRun(Sums(first - left), BytesOf(samples + first + offset),
               static_cast<size_t>(last - first + 1) * sizeof(ARGB), weight);
    }

    void Add(double weight, const ARGB& sample, int32_t pixel) {
        AddRun(Sums(pixel), BytesOf(&sample), sizeof(ARGB), weight);
    }

    double* Sums(int64_t pixel) { return sums_.data() + static_cast<size_t>(pixel) * sizeof(ARGB); }

    const ConvolutionKernel& kernel_;
    std::vector<Tap> taps_;
    const ARGB* source_;
    ARGB* target_;
    int32_t width_, height_;
    std::vector<double> sums_;
};

}  // namespace

int32_t Convolve(const ConvolutionKernel& kernel, std::span<const ARGB> source,
                 std::span<ARGB> target, int32_t width, int32_t x0, int32_t y0, int32_t x1,
                 int32_t y1) {
    if (width < 1) return kOutside;
    Convolution convolution(kernel, source, target, width);
    const auto box = PixelBox::Of(width, convolution.Height(), x0, y0, x1, y1);
    if (!box) return kOutside;
    convolution.Run(*box);
    return 0;
}

int32_t ConvolveInPlace(const ConvolutionKernel& kernel, std::span<ARGB> pixels, int32_t width,
                        int32_t x0, int32_t y0, int32_t x1, int32_t y1) {
    std::vector<ARGB> result(pixels.size());
    const int32_t status = Convolve(kernel, pixels, result, width, x0, y0, x1, y1);
    if (status == 0) std::copy(result.begin(), result.end(), pixels.begin());
    return status;
}

const ConvolutionKernel& EdgeKernel() {
    static const ConvolutionKernel kernel{ConvolutionCopy, 3, 3, {1, 0, -1, 1, 0, -1, 1, 0, -1}};
    return kernel;
}

void EdgeKernel3x3(std::span<ARGB> pixels, int32_t width) {
    ConvolveInPlace(EdgeKernel(), pixels, width, 0, 0, 0, 0);
}

}  // namespace vxgui
