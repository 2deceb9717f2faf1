#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "tests/support/GdiplusSession.h"
#include "vxgui/platform/gdiplus.h"

namespace vxgui::gdiplus {

/// GDI+ for the length of a test.
class GeometryTest : public testing::Test {
    test::GdiplusSession session_;
};

/// A handle that is deleted at the end.
template <class Flat, GpStatus (*kDelete)(Flat*)>
class Owned {
public:
    Owned() = default;
    Owned(Owned&& other) : handle_(std::exchange(other.handle_, nullptr)) {}
    ~Owned() {
        if (handle_) kDelete(handle_);
    }
    operator Flat*() const { return handle_; }
    /// For a creating call.
    Flat** operator&() { return &handle_; }

private:
    Flat* handle_ = nullptr;
};
using OwnedMatrix = Owned<GpMatrix, GdipDeleteMatrix>;
using OwnedPath = Owned<GpPath, GdipDeletePath>;
using OwnedPen = Owned<GpPen, GdipDeletePen>;
using OwnedBrush = Owned<GpBrush, GdipDeleteBrush>;

using Elements = std::array<REAL, 6>;

inline OwnedMatrix MatrixOf(const Elements& e) {
    OwnedMatrix matrix;
    EXPECT_EQ(GdipCreateMatrix2(e[0], e[1], e[2], e[3], e[4], e[5], &matrix), Ok);
    return matrix;
}
inline Elements ElementsOf(const GpMatrix* matrix) {
    Elements elements{};
    EXPECT_EQ(GdipGetMatrixElements(matrix, elements.data()), Ok);
    return elements;
}

inline OwnedPath NewPath(FillMode mode = FillModeAlternate) {
    OwnedPath path;
    EXPECT_EQ(GdipCreatePath(mode, &path), Ok);
    return path;
}
inline OwnedPen NewPen(REAL width, Unit unit = UnitWorld) {
    OwnedPen pen;
    EXPECT_EQ(GdipCreatePen1(0xFF000000, width, unit, &pen), Ok);
    return pen;
}

inline INT CountOf(GpPath* path) {
    INT count = -1;
    EXPECT_EQ(GdipGetPointCount(path, &count), Ok);
    return count;
}
inline std::vector<GpPointF> PointsOf(GpPath* path) {
    std::vector<GpPointF> points(static_cast<size_t>(CountOf(path)));
    if (points.empty()) return points;
    EXPECT_EQ(GdipGetPathPoints(path, points.data(), CountOf(path)), Ok);
    return points;
}
inline std::vector<int> TypesOf(GpPath* path) {
    std::vector<BYTE> types(static_cast<size_t>(CountOf(path)));
    if (types.empty()) return {};
    EXPECT_EQ(GdipGetPathTypes(path, types.data(), CountOf(path)), Ok);
    return {types.begin(), types.end()};
}

MATCHER_P2(IsNear, points, tolerance, "") {
    if (arg.size() != points.size()) {
        *result_listener << "has " << arg.size() << " points";
        return false;
    }
    for (size_t i = 0; i < points.size(); ++i) {
        if (std::abs(arg[i].X - points[i].X) > tolerance ||
            std::abs(arg[i].Y - points[i].Y) > tolerance) {
            *result_listener << "point " << i << " is " << arg[i].X << ", " << arg[i].Y;
            return false;
        }
    }
    return true;
}

inline void ExpectPoints(GpPath* path, const std::vector<GpPointF>& expected,
                         REAL tolerance = 1e-4f) {
    EXPECT_THAT(PointsOf(path), IsNear(expected, tolerance));
}
inline void ExpectTypes(GpPath* path, const std::vector<int>& expected) {
    EXPECT_EQ(TypesOf(path), expected);
}

inline bool operator==(const GpPoint& a, const GpPoint& b) { return a.X == b.X && a.Y == b.Y; }
inline bool operator==(const GpPointF& a, const GpPointF& b) { return a.X == b.X && a.Y == b.Y; }

/// A handle that names nothing.
template <class Flat>
Flat* Forged() {
    return reinterpret_cast<Flat*>(uintptr_t{0x33});
}

}  // namespace vxgui::gdiplus
