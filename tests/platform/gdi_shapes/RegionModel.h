#pragma once

#include <algorithm>
#include <bitset>
#include <vector>

#include "vxgui/platform/gdi/PixelRegion.h"

namespace vxgui::gdi::test {

/// A region as one bit for each pixel of a small square: the plain reference.
class RegionModel {
public:
    static constexpr int kSide = 48;

    RegionModel() = default;
    explicit RegionModel(RECT r) {
        if (r.left > r.right) std::swap(r.left, r.right);
        if (r.top > r.bottom) std::swap(r.top, r.bottom);
        ForEachPixel([&](int x, int y) {
            bits_[Index(x, y)] = x >= r.left && x < r.right && y >= r.top && y < r.bottom;
        });
    }

    bool At(int x, int y) const {
        return x >= 0 && y >= 0 && x < kSide && y < kSide && bits_[Index(x, y)];
    }

    static RegionModel Combined(const RegionModel& a, const RegionModel& b, int mode) {
        RegionModel result;
        result.bits_ = mode == RGN_AND    ? a.bits_ & b.bits_
                       : mode == RGN_OR   ? a.bits_ | b.bits_
                       : mode == RGN_XOR  ? a.bits_ ^ b.bits_
                       : mode == RGN_DIFF ? a.bits_ & ~b.bits_
                                          : a.bits_;
        return result;
    }

    /// What leaves the square is lost.
    RegionModel Shifted(int dx, int dy) const {
        RegionModel result;
        ForEachPixel([&](int x, int y) { result.bits_[Index(x, y)] = At(x - dx, y - dy); });
        return result;
    }

    /// The rectangles in their one canonical form: rows as runs, equal neighbouring rows merged.
    std::vector<RECT> Rectangles() const {
        std::vector<RECT> result;
        std::vector<RECT> band;
        for (int y = 0; y < kSide; ++y) {
            std::vector<RECT> row = RunsOf(y);
            if (!band.empty() && band.front().bottom == y && SameRuns(band, row)) {
                for (RECT& r : band) r.bottom = y + 1;
                continue;
            }
            result.insert(result.end(), band.begin(), band.end());
            band = std::move(row);
        }
        result.insert(result.end(), band.begin(), band.end());
        return result;
    }

    RECT Bounds() const {
        RECT box{kSide, kSide, 0, 0};
        for (const RECT& r : Rectangles()) {
            box = {std::min(box.left, r.left), std::min(box.top, r.top),
                   std::max(box.right, r.right), std::max(box.bottom, r.bottom)};
        }
        return bits_.none() ? RECT{} : box;
    }

    friend bool operator==(const RegionModel&, const RegionModel&) = default;

private:
    static size_t Index(int x, int y) { return static_cast<size_t>(y) * kSide + x; }

    template <class Visit>
    static void ForEachPixel(Visit&& visit) {
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) visit(x, y);
        }
    }

    std::vector<RECT> RunsOf(int y) const {
        std::vector<RECT> runs;
        for (int x = 0; x < kSide; ++x) {
            if (!At(x, y)) continue;
            if (At(x - 1, y)) {
                runs.back().right = x + 1;
            } else {
                runs.push_back({x, y, x + 1, y + 1});
            }
        }
        return runs;
    }

    static bool SameRuns(const std::vector<RECT>& a, const std::vector<RECT>& b) {
        return std::ranges::equal(a, b, [](const RECT& p, const RECT& q) {
            return p.left == q.left && p.right == q.right;
        });
    }

    std::bitset<kSide * kSide> bits_;
};

}  // namespace vxgui::gdi::test
