#pragma once

#include "vxgui/gdip/GpFontFamily.h"
#include "vxgui/platform/ole.h"

namespace vxgui {

class GpGraphics;

/// A font. Its name, unit, size and style are mirrored in fields, and setting one of them makes the
/// font anew. A change that fails leaves the old font in place, and a style bit changed.
class VXGUI_API GpFont : public GpOwner<GpFont, gdiplus::GpFont> {
public:
    static constexpr auto kDelete = flat::GdipDeleteFont;
    static constexpr auto kClone = flat::GdipCloneFont;

    gdiplus::GpFont* Handle() const { return handle_; }
    /// Owns the font, and reads the fields from it.
    void SetHandle(gdiplus::GpFont*& handle);
    void Dispose();

    bool Create(const String& Name, float SIZE, int32_t Style = 0,
                gdiplus::Unit Unit = gdiplus::UnitPoint);
    bool CreateFromFontFamily(gdiplus::GpFontFamily* hFontFamily, float SIZE, int32_t Style = 0,
                              gdiplus::Unit Unit = gdiplus::UnitPoint);
    bool FromLogFontA(const gdi::LOGFONTA* lpLogFontA, gdi::HDC hDC = nullptr);
    /// Raises for none.
    bool FromStdFont(const Ref<ole::StdFont>& oFont);
    bool FromHDC(gdi::HDC lHDC);
    Ref<ole::StdFont> StdFont();
    /// A family of the caller's own.
    Ref<GpFontFamily> FontFamily();

    bool Bold() const { return (mStyle & gdiplus::FontStyleBold) != 0; }
    void Bold(bool value) { SetStyleBit(gdiplus::FontStyleBold, value); }
    bool Italic() const { return (mStyle & gdiplus::FontStyleItalic) != 0; }
    void Italic(bool value) { SetStyleBit(gdiplus::FontStyleItalic, value); }
    bool StrikeOut() const { return (mStyle & gdiplus::FontStyleStrikeout) != 0; }
    void StrikeOut(bool value) { SetStyleBit(gdiplus::FontStyleStrikeout, value); }
    bool Underline() const { return (mStyle & gdiplus::FontStyleUnderline) != 0; }
    void Underline(bool value) { SetStyleBit(gdiplus::FontStyleUnderline, value); }
    String Name() const { return mName; }
    void Name(const String& value);
    float SIZE() const { return mSize; }
    void SIZE(float value);
    int32_t Style() const { return mStyle; }
    void Style(int32_t value);
    gdiplus::Unit Unit() const { return mUnit; }
    void Unit(gdiplus::Unit value);

    /// The line spacing on a graphics, or on the screen for none; -1 on failure.
    float Height(gdiplus::GpGraphics* hGraphics);
    /// The line spacing at a resolution; 0 stands for the screen's.
    float HeightDPI(float Dpi);
    float PointSize();
    /// A handle that nobody needs to delete. It lives for a while: until the thread has asked for
    /// a few others.
    gdi::HFONT hFont();

    /// The font in another weight, of 0 to 1000.
    bool SetWeight(int32_t Weight, gdi::HDC hDC = nullptr);
    bool SetWeightWithGraphics(int32_t Weight, const Ref<GpGraphics>& g = nullptr);

    // For the library's own classes.
    /// The em size in world units that gives this font's height at 96 dots an inch.
    VXGUI_LOCAL float PathEmSize();
    VXGUI_LOCAL bool GetLogFontOf(gdi::LOGFONTA* lpLogFont, gdi::HDC hDC);
    VXGUI_LOCAL bool GetLogFontWith(gdi::LOGFONTA* lpLogFont, const Ref<GpGraphics>& g);

private:
    void SetStyleBit(int32_t bit, bool value);
    void FindPathEmSize();
    void SearchPathEmSize(gdiplus::GpFontFamily* family, float target);
    bool Reweigh(gdiplus::GpGraphics* graphics, int32_t weight, gdi::HDC dc);

    String mName;
    gdiplus::Unit mUnit = gdiplus::UnitWorld;
    float mSize = 0;
    float mPathEmSize = 0;  ///< 0 when not yet found
    int32_t mStyle = 0;
};

}  // namespace vxgui
