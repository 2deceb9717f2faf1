#include "vxgui/colour/ColorWheel.h"

#include <cmath>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {
namespace {

constexpr double kRadius[] = {75, 60, 58, 43, 41, 26};
constexpr double kCentre = 75;
constexpr double kPi = 3.14159265358979;

constexpr int kAnticlockwise = 1, kClockwise = 2;

gdi::RECT CircleBox(int radius) {
    const double r = kRadius[radius];
    const int32_t low = RoundHalfEven(kCentre - r), high = RoundHalfEven(kCentre + r);
    return {low, low, high, high};
}

bool Same(gdi::POINT a, gdi::POINT b) { return a.x == b.x && a.y == b.y; }

using ArcCall = BOOL (*)(gdi::HDC, int, int, int, int, int, int, int, int);

void AddArc(gdi::HDC dc, ArcCall call, int direction, int radius, gdi::POINT from, gdi::POINT to) {
    const gdi::RECT box = CircleBox(radius);
    gdi::SetArcDirection(dc, direction);
    call(dc, box.left, box.top, box.right, box.bottom, from.x, from.y, to.x, to.y);
}

}  // namespace

ColorWheel::ColorWheel() {
    PlacePoints();
    const gdi::HDC dc = gdi::CreateCompatibleDC(nullptr);
    for (int angle = 0; angle < kAngles; ++angle) {
        for (int ring = 0; ring < kWheelRings; ++ring) {
            wedges_[Place(ring, angle)] = MakeWedge(dc, ring, angle);
        }
    }
    gdi::DeleteDC(dc);
}

ColorWheel::~ColorWheel() {
    for (const gdi::HRGN wedge : wedges_) gdi::DeleteObject(wedge);
}

void ColorWheel::PlacePoints() {
    for (int angle = 0; angle <= kAngles; ++angle) {
        const double theta = (angle >= 270 ? angle - 270 : angle + 90) * kPi / 180;
        for (int i = 0; i < kRadii; ++i) {
            points_[static_cast<size_t>(angle)][static_cast<size_t>(i)] = {
                RoundHalfEven(std::cos(theta) * kRadius[i] + kCentre),
                RoundHalfEven(kCentre - std::sin(theta) * kRadius[i])};
        }
    }
}

gdi::POINT ColorWheel::PointAt(int radius, int angle) const {
    return points_[static_cast<size_t>(angle)][static_cast<size_t>(radius)];
}

gdi::HRGN ColorWheel::MakeWedge(gdi::HDC dc, int ring, int angle) const {
    const int end = angle + 2 > kAngles ? angle - 358 : angle + 2;
    const int outer = 2 * ring, inner = outer + 1;
    const gdi::POINT outerFrom = PointAt(outer, angle), outerTo = PointAt(outer, end);
    const gdi::POINT innerFrom = PointAt(inner, angle), innerTo = PointAt(inner, end);
    gdi::BeginPath(dc);
    gdi::MoveToEx(dc, innerFrom.x, innerFrom.y, nullptr);
    if (Same(outerFrom, outerTo)) {
        gdi::LineTo(dc, outerFrom.x, outerFrom.y);
    } else {
        AddArc(dc, gdi::ArcTo, kAnticlockwise, outer, outerFrom, outerTo);
    }
    gdi::LineTo(dc, innerTo.x, innerTo.y);
    if (!Same(innerFrom, innerTo)) AddArc(dc, gdi::Arc, kClockwise, inner, innerTo, innerFrom);
    gdi::EndPath(dc);
    return gdi::PathToRegion(dc);
}

void ColorWheel::Paint(gdi::HDC dc, const WheelValues& values) const {
    constexpr int kToTheCentre = 20;
    for (int angle = 0; angle < kAngles; ++angle) {
        for (int ring = 0; ring < kWheelRings; ++ring) {
            const WheelColor color = RingColor(ring, angle, values);
            const gdi::HBRUSH brush = gdi::CreateSolidBrush(
                static_cast<COLORREF>(ColorRefOf(color.red, color.green, color.blue)));
            gdi::FillRgn(dc, Wedge(ring, angle), brush);
            if (ring == kWheelRings - 1) {
                gdi::FrameRgn(dc, Wedge(ring, angle), brush, kToTheCentre, kToTheCentre);
            }
            gdi::DeleteObject(brush);
        }
    }
}

}  // namespace vxgui
