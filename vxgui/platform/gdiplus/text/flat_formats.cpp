#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/text/StringFormat.h"
#include "vxgui/platform/gdiplus_strings.h"

namespace vxgui::gdiplus {
namespace {

// Entered once, for as long as the process runs.
GpStatus ShareFormat(GpStringFormat** format, GpStringFormat* handle) {
    return FlatCreate(format, [&] {
        *format = handle;
        return Ok;
    });
}

GpStringFormat* Shared(const FormatSettings& settings) {
    return static_cast<GpStringFormat*>(EnterObject(New<StringFormat>(settings, true)));
}

}  // namespace

extern "C" {

GpStatus GdipCreateStringFormat(INT formatAttributes, LANGID language, GpStringFormat** format) {
    return FlatCreate(format, [&] {
        FormatSettings settings;
        settings.flags = formatAttributes;
        settings.language = language;
        return HandOut(format, New<StringFormat>(std::move(settings)));
    });
}

GpStatus GdipStringFormatGetGenericDefault(GpStringFormat** format) {
    static GpStringFormat* const shared = Shared(FormatSettings::GenericDefault());
    return ShareFormat(format, shared);
}

GpStatus GdipStringFormatGetGenericTypographic(GpStringFormat** format) {
    static GpStringFormat* const shared = Shared(FormatSettings::GenericTypographic());
    return ShareFormat(format, shared);
}

GpStatus GdipCloneStringFormat(const GpStringFormat* format, GpStringFormat** newFormat) {
    return FlatCreate(newFormat, [&] {
        return FlatOn<StringFormat>(format, [&](StringFormat& found) {
            Ref<StringFormat> copy = New<StringFormat>(found.settings);
            copy->ranges = found.ranges;
            return HandOut(newFormat, std::move(copy));
        });
    });
}

GpStatus GdipDeleteStringFormat(GpStringFormat* format) {
    return FlatOn<StringFormat>(format, [&](StringFormat& found) {
        return found.shared || RetireObject(format) ? Ok : InvalidParameter;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
