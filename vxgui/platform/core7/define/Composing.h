#pragma once

#include "vxgui/base/String.h"

/// The lines of a define file, written. All raise error 5 for what the reader would not take as
/// it is meant.
namespace vxgui::core7 {

/// The header of a section.
std::u16string ComposeSection(const String& name);

/// A key with its value; `beginning` is a line that ends where the value of the key `name` begins.
/// Quotes go around a value only where the reader would take something off it.
std::u16string ComposeKey(const std::u16string& beginning, std::u16string_view name,
                          const String& value);

/// What stands before the value in a line with a key: the key, the sign, the blanks behind it.
std::u16string BeforeValue(std::u16string_view line);

}  // namespace vxgui::core7
