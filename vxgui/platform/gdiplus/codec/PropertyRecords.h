#pragma once

#include <span>

#include "vxgui/platform/codecs/ImageProperties.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// Bytes that the published records of so many properties take, their values included.
size_t RecordSize(std::span<const codecs::ImageProperty> properties);

/// Writes the records one after the other, and the values behind them.
void StoreProperties(std::span<const codecs::ImageProperty> properties, PropertyItem* to);

}  // namespace vxgui::gdiplus
