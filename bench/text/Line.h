#pragma once

#include <cstdint>

namespace vxgui::bench {

/// What is drawn: 40 characters of DejaVu Sans in an em of 12 pixels, on a white ground.
inline constexpr char kLine[] = "The quick brown fox jumps over lazy dogs";
static_assert(sizeof kLine == 41);
inline constexpr int kLineEm = 12, kLineWidth = 400, kLineHeight = 40;
inline constexpr int kLineX = 12, kLineY = 12;
inline constexpr uint32_t kLineGround = 0xFFFFFFFF, kLineColor = 0xFF102030;
/// Of the soft shadow, which is black.
inline constexpr int kLineRadius = 4;

}  // namespace vxgui::bench
