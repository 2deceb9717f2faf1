#pragma once

#include "vxgui/pixels/ByteTable.h"

/// Tables of tone that several effects are made of.
namespace vxgui::gdiplus {

/// Every value as it is.
ByteTable SameTone();
/// A place from 0 to 1, brightened by a midtone from -100 to 100 that leaves the ends.
double Midtone(double place, int midtone);
/// From `percent` -100, all middle gray, to 100, a step there.
double Contrast(double value, int percent);
/// One table for the three colours; alpha stays.
ChannelTables ForColors(const ByteTable& table);

}  // namespace vxgui::gdiplus
