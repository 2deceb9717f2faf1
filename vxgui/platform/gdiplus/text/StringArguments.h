#pragma once

#include <cmath>
#include <optional>
#include <string_view>

#include "vxgui/platform/gdi/text/TextArgument.h"
#include "vxgui/platform/gdiplus/text/StringFormat.h"

namespace vxgui::gdiplus {

/// What drawing, measuring and tracing a string have in common.
struct StringArguments {
    std::u16string_view text;
    GpRectF rect;
    Ref<StringFormat> format;  ///< none for the generic default

    const FormatSettings& Format() const {
        return format ? format->settings : FormatSettings::GenericDefault();
    }
};

/// None for wrong ones: no text, a count below -1, no rectangle, or a handle of no format. A zero
/// ends the text.
inline std::optional<StringArguments> ReadString(const WCHAR* string, INT length,
                                                 const GpRectF* rect,
                                                 const GpStringFormat* format) {
    StringArguments read{};
    if (!string || !rect || !gdi::TextArgument(string, length, &read.text)) return std::nullopt;
    read.text = read.text.substr(0, read.text.find(u'\0'));
    for (const REAL side : {rect->X, rect->Y, rect->Width, rect->Height}) {
        if (!std::isfinite(side)) return std::nullopt;
    }
    read.rect = *rect;
    read.format = Find<StringFormat>(format);
    if (format && !read.format) return std::nullopt;
    return read;
}

}  // namespace vxgui::gdiplus
