#pragma once

#include "vxgui/gdip/GpObject.h"

namespace vxgui {

/// How strings are laid out. A new object holds a copy of the generic default format. The setter
/// operations answer false on failure; the setter properties raise error 5.
class VXGUI_API GpStringFormat : public GpOwner<GpStringFormat, gdiplus::GpStringFormat> {
public:
    static constexpr auto kDelete = flat::GdipDeleteStringFormat;
    static constexpr auto kClone = flat::GdipCloneStringFormat;

    GpStringFormat();

    gdiplus::GpStringFormat* Handle() const { return handle_; }
    bool Create(int32_t FormatAttributes, gdiplus::LANGID LANGID = 0);
    /// A private copy of a shared format.
    bool GetGenericDefault();
    bool GetGenericTypographic();

    int32_t GetFormatFlags();
    bool SetFormatFlags(int32_t flags);
    gdiplus::StringAlignment GetAlignment();
    bool SetAlignment(gdiplus::StringAlignment alignment);
    gdiplus::StringAlignment GetLineAlignment();
    bool SetLineAlignment(gdiplus::StringAlignment alignment);
    gdiplus::StringTrimming GetTrimming();
    bool SetTrimming(gdiplus::StringTrimming trimming);
    int32_t GetHotkeyPrefix();
    bool SetHotkeyPrefix(int32_t prefix);
    bool GetTabStops(int32_t Count, float* firstTabOffset, float* tabStops);
    bool SetTabStops(int32_t Count, float firstTabOffset, const float* tabStops);
    int32_t GetTabStopCount();
    gdiplus::StringDigitSubstitute GetDigitSubstitution(gdiplus::LANGID* LANGID = nullptr);
    bool SetDigitSubstitution(gdiplus::StringDigitSubstitute substitute,
                              gdiplus::LANGID LANGID = 0);
    int32_t GetMeasurableCharacterRangeCount();
    bool SetMeasurableCharacterRanges(int32_t Count, const gdiplus::CharacterRange* ranges);

    gdiplus::StringAlignment Alignment() { return GetAlignment(); }
    void Alignment(gdiplus::StringAlignment value);
    /// Reading it copies the line alignment to the alignment and answers 0, which is meant.
    gdiplus::StringAlignment LineAlignment();
    void LineAlignment(gdiplus::StringAlignment value);
    int32_t FormatFlags() { return GetFormatFlags(); }
    void FormatFlags(int32_t value);
    gdiplus::StringDigitSubstitute DigitSubstitution() { return GetDigitSubstitution(); }
    void DigitSubstitution(gdiplus::StringDigitSubstitute value);
    gdiplus::StringTrimming Trimming() { return GetTrimming(); }
    void Trimming(gdiplus::StringTrimming value);
    int32_t HotkeyPrefix() { return GetHotkeyPrefix(); }
    void HotkeyPrefix(int32_t value);

    /// The format of `DrawTextFlags`, on a copy of a generic one, with `SFFlags` of the string
    /// format's own added. On failure the object keeps what it has.
    gdiplus::Status FromDTFlags(uint32_t DTFlags, bool Typographic = false, int32_t SFFlags = 0);

private:
    using Format = gdiplus::GpStringFormat;

    template <class Generic>
    bool CopyGeneric(const Generic& generic);
    template <class Result, class Get>
    Result Read(const Get& get);

    static gdiplus::Status ApplyDTFlags(Format* format, uint32_t flags, int32_t formatFlags);
};

}  // namespace vxgui
