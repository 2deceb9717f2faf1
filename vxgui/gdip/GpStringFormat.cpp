#include "vxgui/gdip/GpStringFormat.h"

#include "vxgui/base/Error.h"

namespace vxgui {
namespace {

void Require(bool set) {
    if (!set) {
        throw Error(ErrorNumber::InvalidCall, "GpStringFormat",
                    "Invalid procedure call or argument");
    }
}

}  // namespace

GpStringFormat::GpStringFormat() { GetGenericDefault(); }

bool GpStringFormat::Create(int32_t FormatAttributes, gdiplus::LANGID LANGID) {
    const KeepAlive keep(this);
    Format* made = nullptr;
    return Adopt(flat::GdipCreateStringFormat(FormatAttributes, LANGID, &made), made);
}

template <class Generic>
bool GpStringFormat::CopyGeneric(const Generic& generic) {
    Format *shared = nullptr, *copy = nullptr;
    if (!Check(generic(&shared))) return false;
    const bool copied = Adopt(flat::GdipCloneStringFormat(shared, &copy), copy);
    flat::GdipDeleteStringFormat(shared);
    return copied;
}

bool GpStringFormat::GetGenericDefault() {
    return CopyGeneric(flat::GdipStringFormatGetGenericDefault);
}

bool GpStringFormat::GetGenericTypographic() {
    return CopyGeneric(flat::GdipStringFormatGetGenericTypographic);
}

template <class Result, class Get>
Result GpStringFormat::Read(const Get& get) {
    Result value{};
    Check(get(handle_, &value));
    return value;
}

int32_t GpStringFormat::GetFormatFlags() { return Read<int32_t>(flat::GdipGetStringFormatFlags); }

bool GpStringFormat::SetFormatFlags(int32_t flags) {
    return Check(flat::GdipSetStringFormatFlags(handle_, flags));
}

gdiplus::StringAlignment GpStringFormat::GetAlignment() {
    return Read<gdiplus::StringAlignment>(flat::GdipGetStringFormatAlign);
}

bool GpStringFormat::SetAlignment(gdiplus::StringAlignment alignment) {
    return Check(flat::GdipSetStringFormatAlign(handle_, alignment));
}

gdiplus::StringAlignment GpStringFormat::GetLineAlignment() {
    return Read<gdiplus::StringAlignment>(flat::GdipGetStringFormatLineAlign);
}

bool GpStringFormat::SetLineAlignment(gdiplus::StringAlignment alignment) {
    return Check(flat::GdipSetStringFormatLineAlign(handle_, alignment));
}

gdiplus::StringTrimming GpStringFormat::GetTrimming() {
    return Read<gdiplus::StringTrimming>(flat::GdipGetStringFormatTrimming);
}

bool GpStringFormat::SetTrimming(gdiplus::StringTrimming trimming) {
    return Check(flat::GdipSetStringFormatTrimming(handle_, trimming));
}

int32_t GpStringFormat::GetHotkeyPrefix() {
    return Read<int32_t>(flat::GdipGetStringFormatHotkeyPrefix);
}

bool GpStringFormat::SetHotkeyPrefix(int32_t prefix) {
    return Check(flat::GdipSetStringFormatHotkeyPrefix(handle_, prefix));
}

bool GpStringFormat::GetTabStops(int32_t Count, float* firstTabOffset, float* tabStops) {
    return Check(flat::GdipGetStringFormatTabStops(handle_, Count, firstTabOffset, tabStops));
}

bool GpStringFormat::SetTabStops(int32_t Count, float firstTabOffset, const float* tabStops) {
    return Check(flat::GdipSetStringFormatTabStops(handle_, firstTabOffset, Count, tabStops));
}

int32_t GpStringFormat::GetTabStopCount() {
    return Read<int32_t>(flat::GdipGetStringFormatTabStopCount);
}

gdiplus::StringDigitSubstitute GpStringFormat::GetDigitSubstitution(gdiplus::LANGID* LANGID) {
    auto substitute = gdiplus::StringDigitSubstituteUser;
    Check(flat::GdipGetStringFormatDigitSubstitution(handle_, LANGID, &substitute));
    return substitute;
}

bool GpStringFormat::SetDigitSubstitution(gdiplus::StringDigitSubstitute substitute,
                                          gdiplus::LANGID LANGID) {
    return Check(flat::GdipSetStringFormatDigitSubstitution(handle_, LANGID, substitute));
}

int32_t GpStringFormat::GetMeasurableCharacterRangeCount() {
    return Read<int32_t>(flat::GdipGetStringFormatMeasurableCharacterRangeCount);
}

bool GpStringFormat::SetMeasurableCharacterRanges(int32_t Count,
                                                  const gdiplus::CharacterRange* ranges) {
    return Check(flat::GdipSetStringFormatMeasurableCharacterRanges(handle_, Count, ranges));
}

gdiplus::StringAlignment GpStringFormat::LineAlignment() {
    Alignment(GetLineAlignment());
    return gdiplus::StringAlignmentNear;
}

void GpStringFormat::Alignment(gdiplus::StringAlignment value) { Require(SetAlignment(value)); }

void GpStringFormat::LineAlignment(gdiplus::StringAlignment value) {
    Require(SetLineAlignment(value));
}

void GpStringFormat::FormatFlags(int32_t value) { Require(SetFormatFlags(value)); }

void GpStringFormat::DigitSubstitution(gdiplus::StringDigitSubstitute value) {
    Require(SetDigitSubstitution(value));
}

void GpStringFormat::Trimming(gdiplus::StringTrimming value) { Require(SetTrimming(value)); }

void GpStringFormat::HotkeyPrefix(int32_t value) { Require(SetHotkeyPrefix(value)); }

}  // namespace vxgui
