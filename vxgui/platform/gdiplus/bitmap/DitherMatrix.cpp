#include "vxgui/platform/gdiplus/bitmap/DitherMatrix.h"

#include <algorithm>

namespace vxgui::gdiplus {
namespace {

// A square of side 2n is four of side n: M(2n) = 4 M(n) + {0, 2, 3, 1}.
DitherMatrix Ordered(int side) {
    if (side == 1) return {};
    const DitherMatrix half = Ordered(side / 2);
    constexpr int kQuarter[] = {0, 2, 3, 1};
    DitherMatrix matrix{side, side, {}};
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int inner =
                half.ranks[static_cast<size_t>(y % half.height * half.width + x % half.width)];
            const int quarter = y / half.height * 2 + x / half.width;
            matrix.ranks.push_back(4 * inner + kQuarter[quarter]);
        }
    }
    return matrix;
}

// Cells by their way on a square spiral from the middle outwards.
std::vector<size_t> SpiralOrder(int side) {
    std::vector<size_t> order;
    int x = side / 2 - 1, y = side / 2 - 1, dx = 1, dy = 0;
    for (int leg = 0; order.size() < static_cast<size_t>(side * side); ++leg) {
        for (int step = 0; step < leg / 2 + 1; ++step, x += dx, y += dy) {
            if (x < 0 || y < 0 || x >= side || y >= side) continue;
            order.push_back(static_cast<size_t>(y * side + x));
        }
        dx = std::exchange(dy, dx);
        dx = -dx;
    }
    return order;
}

// The first ranks are drawn last: a high threshold turns a pixel bright first.
DitherMatrix Spiral(int side) {
    DitherMatrix matrix{side, side, std::vector<int>(static_cast<size_t>(side * side))};
    int rank = side * side;
    for (const size_t cell : SpiralOrder(side)) matrix.ranks[cell] = --rank;
    return matrix;
}

DitherMatrix DualSpiral(int side) {
    const DitherMatrix one = Spiral(side);
    DitherMatrix matrix{2 * side, 2 * side, {}};
    const int cells = side * side;
    for (int y = 0; y < 2 * side; ++y) {
        for (int x = 0; x < 2 * side; ++x) {
            const int rank = one.ranks[static_cast<size_t>(y % side * side + x % side)];
            const bool other = (x / side + y / side) % 2 != 0;
            const int twin = y / side;  // two dots of each kind share a rank's four places
            matrix.ranks.push_back(2 * (other ? cells - 1 - rank : cells + rank) + twin);
        }
    }
    return matrix;
}

}  // namespace

DitherMatrix MatrixOf(DitherType type) {
    switch (type) {
        case DitherTypeOrdered4x4:
            return Ordered(4);
        case DitherTypeOrdered8x8:
            return Ordered(8);
        case DitherTypeOrdered16x16:
            return Ordered(16);
        case DitherTypeSpiral4x4:
            return Spiral(4);
        case DitherTypeSpiral8x8:
            return Spiral(8);
        case DitherTypeDualSpiral4x4:
            return DualSpiral(4);
        case DitherTypeDualSpiral8x8:
            return DualSpiral(8);
        default:
            return {};
    }
}

}  // namespace vxgui::gdiplus
