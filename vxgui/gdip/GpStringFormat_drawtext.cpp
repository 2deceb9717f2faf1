#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui {
namespace {

// The value of the first row whose flag is set.
struct FlagRow {
    uint32_t flag;
    int32_t value;
};

template <size_t kCount>
int32_t FirstOf(uint32_t flags, const FlagRow (&rows)[kCount], int32_t otherwise) {
    for (const FlagRow& row : rows) {
        if (flags & row.flag) return row.value;
    }
    return otherwise;
}

constexpr FlagRow kAlignments[] = {{gdi::DT_CENTER, gdiplus::StringAlignmentCenter},
                                   {gdi::DT_RIGHT, gdiplus::StringAlignmentFar}};
constexpr FlagRow kLineAlignments[] = {{gdi::DT_VCENTER, gdiplus::StringAlignmentCenter},
                                       {gdi::DT_BOTTOM, gdiplus::StringAlignmentFar}};
constexpr FlagRow kTrimmings[] = {{gdi::DT_END_ELLIPSIS, gdiplus::StringTrimmingEllipsisCharacter},
                                  {gdi::DT_WORD_ELLIPSIS, gdiplus::StringTrimmingEllipsisWord},
                                  {gdi::DT_PATH_ELLIPSIS, gdiplus::StringTrimmingEllipsisPath},
                                  {gdi::DT_WORDBREAK, gdiplus::StringTrimmingWord}};
constexpr FlagRow kPrefixes[] = {{gdi::DT_NOPREFIX, gdiplus::HotkeyPrefixNone},
                                 {gdi::DT_HIDEPREFIX, gdiplus::HotkeyPrefixHide}};
constexpr FlagRow kFormatFlags[] = {
    {gdi::DT_SINGLELINE, gdiplus::StringFormatFlagsNoWrap},
    {gdi::DT_EDITCONTROL, gdiplus::StringFormatFlagsDisplayFormatControl},
    {gdi::DT_NOCLIP, gdiplus::StringFormatFlagsNoClip},
    {gdi::DT_RTLREADING, gdiplus::StringFormatFlagsDirectionRightToLeft}};

}  // namespace

gdiplus::Status GpStringFormat::ApplyDTFlags(Format* format, uint32_t flags, int32_t formatFlags) {
    for (const FlagRow& row : kFormatFlags) {
        if (flags & row.flag) formatFlags |= row.value;
    }
    const auto alignment = FirstOf(flags, kAlignments, gdiplus::StringAlignmentNear);
    const auto lines = FirstOf(flags, kLineAlignments, gdiplus::StringAlignmentNear);
    const auto trimming = FirstOf(flags, kTrimmings, gdiplus::StringTrimmingNone);
    gdiplus::Status status =
        flat::GdipSetStringFormatAlign(format, static_cast<gdiplus::StringAlignment>(alignment));
    if (status == gdiplus::Ok) {
        status = flat::GdipSetStringFormatLineAlign(format,
                                                    static_cast<gdiplus::StringAlignment>(lines));
    }
    if (status == gdiplus::Ok) {
        status = flat::GdipSetStringFormatTrimming(format,
                                                   static_cast<gdiplus::StringTrimming>(trimming));
    }
    if (status == gdiplus::Ok) {
        status = flat::GdipSetStringFormatHotkeyPrefix(
            format, FirstOf(flags, kPrefixes, gdiplus::HotkeyPrefixShow));
    }
    return status == gdiplus::Ok ? flat::GdipSetStringFormatFlags(format, formatFlags) : status;
}

gdiplus::Status GpStringFormat::FromDTFlags(uint32_t DTFlags, bool Typographic, int32_t SFFlags) {
    const KeepAlive keep(this);
    Format *source = nullptr, *made = nullptr;
    gdiplus::Status status = Typographic ? flat::GdipStringFormatGetGenericTypographic(&source)
                                         : flat::GdipStringFormatGetGenericDefault(&source);
    if (status == gdiplus::Ok) status = flat::GdipCloneStringFormat(source, &made);
    if (status == gdiplus::Ok) status = ApplyDTFlags(made, DTFlags, SFFlags);
    if (!Adopt(status, made) && made) flat::GdipDeleteStringFormat(made);
    if (source) flat::GdipDeleteStringFormat(source);
    return status;
}

}  // namespace vxgui
