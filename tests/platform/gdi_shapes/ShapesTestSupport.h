#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

inline bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
inline bool operator==(const POINT& a, const POINT& b) { return a.x == b.x && a.y == b.y; }
inline std::ostream& operator<<(std::ostream& out, const RECT& r) {
    return out << '{' << r.left << ' ' << r.top << ' ' << r.right << ' ' << r.bottom << '}';
}
inline std::ostream& operator<<(std::ostream& out, const POINT& p) {
    return out << '(' << p.x << ' ' << p.y << ')';
}

}  // namespace vxgui::gdi
