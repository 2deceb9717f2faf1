#include "vxgui/platform/gdiplus/bitmap/Dither.h"

#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/bitmap/DitherMatrix.h"

namespace vxgui::gdiplus {
namespace {

constexpr int kChannels = 3;

int Channel(ARGB color, int index) { return static_cast<int>(color >> 8 * index & 255); }

// The colour whose channels are `change(old, index)`, cut to a byte.
template <class Change>
ARGB Changed(ARGB color, Change change) {
    ARGB result = color & 0xFF000000;
    for (int i = 0; i < kChannels; ++i) {
        result |= static_cast<ARGB>(std::clamp(change(Channel(color, i), i), 0, 255)) << 8 * i;
    }
    return result;
}

class ThresholdDitherer final : public Ditherer {
public:
    ThresholdDitherer(DitherMatrix matrix, DitherTarget target)
        : matrix_(std::move(matrix)), target_(std::move(target)) {}

    void Apply(INT y, std::span<ARGB> row) override {
        for (size_t x = 0; x < row.size(); ++x) {
            if (row[x] >> 24 == 0) continue;
            const double offset = matrix_.At(static_cast<INT>(x), y) * target_.step;
            const int added = static_cast<int>(std::lround(offset));
            row[x] = target_.snap(Changed(row[x], [&](int old, int) { return old + added; }));
        }
    }

private:
    const DitherMatrix matrix_;
    const DitherTarget target_;
};

// What a pixel lost goes to its neighbours: 7/16 to the right, 3/16, 5/16 and 1/16 below
// (R. Floyd and L. Steinberg, 1976).
class ErrorDiffuser final : public Ditherer {
public:
    explicit ErrorDiffuser(DitherTarget target) : target_(std::move(target)) {}

    void Apply(INT, std::span<ARGB> row) override {
        now_.swap(below_);
        now_.resize(row.size() + 2);
        below_.assign(row.size() + 2, {});
        for (size_t x = 0; x < row.size(); ++x) {
            if (row[x] >> 24 != 0) row[x] = Store(row[x], x + 1);
        }
    }

private:
    using Loss = std::array<int, kChannels>;  // in sixteenths

    ARGB Store(ARGB color, size_t at) {
        const ARGB wanted = Changed(color, [&](int old, int i) {
            return old + static_cast<int>(std::lround(now_[at][static_cast<size_t>(i)] / 16.0));
        });
        const ARGB stored = target_.snap(wanted);
        for (int i = 0; i < kChannels; ++i) {
            const int lost = Channel(wanted, i) - Channel(stored, i);
            const auto channel = static_cast<size_t>(i);
            now_[at + 1][channel] += 7 * lost;
            below_[at - 1][channel] += 3 * lost;
            below_[at][channel] += 5 * lost;
            below_[at + 1][channel] += lost;
        }
        return stored;
    }

    const DitherTarget target_;
    std::vector<Loss> now_, below_;  // with a column more on either side
};

class NoDitherer final : public Ditherer {
public:
    void Apply(INT, std::span<ARGB>) override {}
};

}  // namespace

std::unique_ptr<Ditherer> MakeDitherer(DitherType type, DitherTarget target) {
    if (type == DitherTypeNone || type == DitherTypeSolid) return std::make_unique<NoDitherer>();
    if (type == DitherTypeErrorDiffusion) return std::make_unique<ErrorDiffuser>(std::move(target));
    return std::make_unique<ThresholdDitherer>(MatrixOf(type), std::move(target));
}

}  // namespace vxgui::gdiplus
