#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/text/StringFormat.h"
#include "vxgui/platform/gdiplus_strings.h"

namespace vxgui::gdiplus {
namespace {

// Runs `change(format)`, which answers a status, on a format that may be changed.
template <class Change>
GpStatus ChangeFormat(GpStringFormat* format, Change change) {
    return FlatOn<StringFormat>(format, [&](StringFormat& found) -> GpStatus {
        return found.shared ? AccessDenied : change(found);
    });
}

template <class T>
GpStatus SetSetting(GpStringFormat* format, T FormatSettings::*field, T value) {
    return ChangeFormat(format, [&](StringFormat& found) {
        found.settings.*field = value;
        return Ok;
    });
}

// A choice from 0 to `last`.
template <class T>
GpStatus SetChoice(GpStringFormat* format, T FormatSettings::*field, INT value, T last) {
    if (value < 0 || value > last) return InvalidParameter;
    return SetSetting(format, field, static_cast<T>(value));
}

template <class T, class Result>
GpStatus GetSetting(const GpStringFormat* format, T FormatSettings::*field, Result* result) {
    return FlatGet<StringFormat>(format, result, [&](StringFormat& found) {
        return static_cast<Result>(found.settings.*field);
    });
}

// Negative stops are left out of the published interface as something to come.
GpStatus CheckStops(INT count, const REAL* stops) {
    if (count < 0 || (count > 0 && !stops)) return InvalidParameter;
    for (INT i = 0; i < count; ++i) {
        if (!std::isfinite(stops[i])) return InvalidParameter;
        if (stops[i] < 0) return NotImplemented;
    }
    return Ok;
}

}  // namespace

extern "C" {

GpStatus GdipSetStringFormatFlags(GpStringFormat* format, INT flags) {
    return SetSetting(format, &FormatSettings::flags, flags);
}

GpStatus GdipGetStringFormatFlags(const GpStringFormat* format, INT* flags) {
    return GetSetting(format, &FormatSettings::flags, flags);
}

GpStatus GdipSetStringFormatAlign(GpStringFormat* format, StringAlignment align) {
    return SetChoice(format, &FormatSettings::alignment, align, StringAlignmentFar);
}

GpStatus GdipGetStringFormatAlign(const GpStringFormat* format, StringAlignment* align) {
    return GetSetting(format, &FormatSettings::alignment, align);
}

GpStatus GdipSetStringFormatLineAlign(GpStringFormat* format, StringAlignment align) {
    return SetChoice(format, &FormatSettings::lineAlignment, align, StringAlignmentFar);
}

GpStatus GdipGetStringFormatLineAlign(const GpStringFormat* format, StringAlignment* align) {
    return GetSetting(format, &FormatSettings::lineAlignment, align);
}

GpStatus GdipSetStringFormatTrimming(GpStringFormat* format, StringTrimming trimming) {
    return SetChoice(format, &FormatSettings::trimming, trimming, StringTrimmingEllipsisPath);
}

GpStatus GdipGetStringFormatTrimming(const GpStringFormat* format, StringTrimming* trimming) {
    return GetSetting(format, &FormatSettings::trimming, trimming);
}

GpStatus GdipSetStringFormatHotkeyPrefix(GpStringFormat* format, INT hotkeyPrefix) {
    return SetChoice(format, &FormatSettings::hotkeyPrefix, hotkeyPrefix, HotkeyPrefixHide);
}

GpStatus GdipGetStringFormatHotkeyPrefix(const GpStringFormat* format, INT* hotkeyPrefix) {
    return GetSetting(format, &FormatSettings::hotkeyPrefix, hotkeyPrefix);
}

GpStatus GdipSetStringFormatTabStops(GpStringFormat* format, REAL firstTabOffset, INT count,
                                     const REAL* tabStops) {
    return ChangeFormat(format, [&](StringFormat& found) {
        const GpStatus status = CheckStops(count, tabStops);
        if (status != Ok) return status;
        found.settings.firstTabOffset = firstTabOffset;
        found.settings.tabStops.assign(tabStops, tabStops + count);
        return Ok;
    });
}

GpStatus GdipGetStringFormatTabStops(const GpStringFormat* format, INT count, REAL* firstTabOffset,
                                     REAL* tabStops) {
    return FlatOn<StringFormat>(format, [&](StringFormat& found) {
        if (count < 0 || !firstTabOffset || !tabStops) return InvalidParameter;
        const std::vector<REAL>& stops = found.settings.tabStops;
        *firstTabOffset = found.settings.firstTabOffset;
        std::copy_n(stops.begin(), std::min(stops.size(), static_cast<size_t>(count)), tabStops);
        return Ok;
    });
}

GpStatus GdipGetStringFormatTabStopCount(const GpStringFormat* format, INT* count) {
    return FlatGet<StringFormat>(format, count, [](StringFormat& found) {
        return static_cast<INT>(found.settings.tabStops.size());
    });
}

GpStatus GdipSetStringFormatDigitSubstitution(GpStringFormat* format, LANGID language,
                                              StringDigitSubstitute substitute) {
    if (substitute < 0 || substitute > StringDigitSubstituteTraditional) return InvalidParameter;
    return ChangeFormat(format, [&](StringFormat& found) {
        found.settings.digitLanguage = language;
        found.settings.digitSubstitute = substitute;
        return Ok;
    });
}

GpStatus GdipGetStringFormatDigitSubstitution(const GpStringFormat* format, LANGID* language,
                                              StringDigitSubstitute* substitute) {
    return FlatOn<StringFormat>(format, [&](StringFormat& found) {
        if (language) *language = found.settings.digitLanguage;
        if (substitute) *substitute = found.settings.digitSubstitute;
        return Ok;
    });
}

GpStatus GdipSetStringFormatMeasurableCharacterRanges(GpStringFormat* format, INT rangeCount,
                                                      const CharacterRange* ranges) {
    constexpr INT kMostRanges = 32;
    return ChangeFormat(format, [&](StringFormat& found) {
        if (rangeCount < 0 || !ranges) return InvalidParameter;
        if (rangeCount > kMostRanges) return ValueOverflow;
        found.ranges.assign(ranges, ranges + rangeCount);
        return Ok;
    });
}

GpStatus GdipGetStringFormatMeasurableCharacterRangeCount(const GpStringFormat* format,
                                                          INT* count) {
    return FlatGet<StringFormat>(
        format, count, [](StringFormat& found) { return static_cast<INT>(found.ranges.size()); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
