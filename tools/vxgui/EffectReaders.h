#pragma once

#include <optional>
#include <string>

#include "vxgui/base/Variant.h"

/// What an option of an effect says, as the effect's record of parameters: numbers with commas
/// between them, or none for a text that isn't of the form.
namespace vxgui::tool {

using EffectRecord = std::optional<ByteArray>;

/// Most records are their numbers one after the other.
EffectRecord ReadTwoWhole(const std::string& text);
EffectRecord ReadThreeWhole(const std::string& text);
EffectRecord ReadTwoNumbers(const std::string& text);
/// 25 numbers.
EffectRecord ReadColorMatrix(const std::string& text);
/// A radius.
EffectRecord ReadBlur(const std::string& text);
/// The corner and the size of a box.
EffectRecord ReadRedEye(const std::string& text);
/// An adjustment and a channel by their names, and a whole number.
EffectRecord ReadCurve(const std::string& text);
/// The path of a file of tables.
EffectRecord ReadTables(const std::string& path);

}  // namespace vxgui::tool
