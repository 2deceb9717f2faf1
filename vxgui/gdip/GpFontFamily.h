#pragma once

#include "vxgui/base/String.h"
#include "vxgui/gdip/GpObject.h"

namespace vxgui {

/// A font family. Measures are in design units; 0 when they can't be had.
class VXGUI_API GpFontFamily : public GpOwner<GpFontFamily, gdiplus::GpFontFamily> {
public:
    static constexpr auto kDelete = flat::GdipDeleteFontFamily;

    gdiplus::GpFontFamily* Handle() const { return handle_; }
    /// The family is deleted in every case; nothing reads `DisposeWhenTerminate`, which is meant.
    void SetHandle(gdiplus::GpFontFamily*& FontFamily, const bool& DisposeWhenTerminate = true);
    void Dispose();

    /// These four end the family that is held before they look for another.
    bool CreateFontFamily(const String& FamilyName);
    bool CreateGenericSerifFamily();
    bool CreateGenericSansSerifFamily();
    bool CreateGenericMonospaceFamily();

    /// Up to 31 characters; empty on failure.
    String GetFamilyName();
    bool IsStyleAvailable(int32_t Style);

    /// The measures of the regular style.
    int32_t EmHeight() { return GetEmHeight(0); }
    int32_t Ascent() { return GetCellAscent(0); }
    int32_t Descent() { return GetCellDescent(0); }
    int32_t LineSpacing() { return GetLineSpacing(0); }
    int32_t GetEmHeight(int32_t Style);
    int32_t GetCellAscent(int32_t Style);
    int32_t GetCellDescent(int32_t Style);
    int32_t GetLineSpacing(int32_t Style);

private:
    template <class Create>
    bool CreateGeneric(const Create& create);
    template <class Get>
    int32_t Measure(const Get& get, int32_t style);

    bool mDisposeWhenTerminate = true;
};

}  // namespace vxgui
