#pragma once

#include <cstddef>
#include <cstdint>

#include "vxgui/platform/gdiplus_types.h"

/// Runs of premultiplied words drawn over others, by Porter and Duff's "over": each byte becomes
/// s + d (255 - a) / 255, rounded and held at 255. These are the drawing library's own results, bit
/// for bit, so that it doesn't show which of the two has drawn.
namespace vxgui::gdiplus {

/// A straight colour as the library multiplies it: in its 16 bits a channel, of which the upper
/// eight count.
ARGB WordOf(ARGB straight);

/// Runs are of `count` words and don't overlap.
void FillWords(ARGB* to, size_t count, ARGB word);
void DrawColor(ARGB* to, size_t count, ARGB word);
void DrawWords(ARGB* to, const ARGB* from, size_t count);
/// The same for words with straight alpha, which are multiplied first.
void DrawStraight(ARGB* to, const ARGB* from, size_t count);
/// One colour through a coverage.
void DrawCovered(ARGB* to, const uint8_t* coverage, size_t count, ARGB word);

}  // namespace vxgui::gdiplus
