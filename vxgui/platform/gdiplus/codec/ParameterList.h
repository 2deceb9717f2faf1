#pragma once

#include <span>
#include <vector>

#include "vxgui/platform/gdiplus_formats.h"

namespace vxgui::gdiplus {

/// A parameter that an encoder takes, with the values that it may have.
struct KnownParameter {
    GUID id;
    EncoderParameterValueType type;
    std::vector<UINT32> values;  ///< a range has a first and a last one
};

/// Empty for encoders without parameters.
std::span<const KnownParameter> ParametersOf(const CLSID& encoder);

size_t RecordSize(std::span<const KnownParameter> parameters);
/// Writes the list, and the values behind it.
void StoreParameters(std::span<const KnownParameter> parameters, EncoderParameters* to);

}  // namespace vxgui::gdiplus
