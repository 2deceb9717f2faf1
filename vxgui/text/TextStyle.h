#pragma once

#include <span>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/platform/ole.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/text/LFont.h"

namespace vxgui {

using gdi::DrawTextFlags;
using enum gdi::DrawTextFlags;

/// The draw styles that have names; 3 (two diagonal copies), 4 (soft shadow) and 5 (blurred
/// shadow) have none.
enum E_TextStyle : int32_t {
    TextStyleNormal = 0,
    TextStyleShadowRight = 1,
    TextStyleOutLine = 2,
};

enum E_TextAlignHorz : int32_t {
    TextAlignHorzLeft = 0,
    TextAlignHorzCenter = 1,
    TextAlignHorzRight = 2,
    TextAlignHorzJustify = 3,
    TextAlignHorzJustifyChar = 4,
};

enum E_TextAlignVert : int32_t {
    TextAlignVertTop = 0,
    TextAlignVertCenter = 1,
    TextAlignVertBottom = 2,
    TextAlignVertJustify = 3,
};

/// How a string is painted, as against `LFont`, which says with which font. Writing a field has
/// no side effect. A style keeps what it draws with between calls, so it draws on one thread.
///
/// One field has the class's own name, which the language allows to a class that declares neither
/// constructors nor a destructor; inside it the type is `class TextStyle`.
class VXGUI_API TextStyle : public Object {
public:
    int32_t TextColor = 0;     ///< an OLE colour
    int32_t TextContrast = 4;  ///< of draw style 5, 0 to 12
    int32_t TextStyle = TextStyleNormal;
    int32_t TextAlignHorz = TextAlignHorzLeft;
    int32_t TextAlignVert = TextAlignVertTop;
    int32_t FormatFlags = 0;      ///< string format flags, of draw style 5
    uint32_t DTFlags = 0;         ///< what the last drawing really used
    int32_t ShadowColor = 0;      ///< an OLE colour, of the ring or shadow
    int32_t ShadowThickness = 4;  ///< of draw style 5; 4 is neutral
    int32_t ShadowX = 0;          ///< reach of the ring, or radius of the blur
    int32_t ShadowY = 0;
    int32_t ShadowOffsetX = 0;  ///< shift of the shadow, rightwards
    int32_t ShadowOffsetY = 0;  ///< and downwards

    /// Sets every field but `DTFlags`. The defaults of a new object aren't kept: what is left out
    /// becomes 0, the contrast and the thickness too.
    void Create(int32_t textColor = 0, int32_t textAlignHorz = 0, int32_t textAlignVert = 0,
                int32_t textStyle = 0, int32_t textContrast = 0, int32_t shadowColor = 0,
                int32_t shadowThickness = 0, int32_t shadowX = 0, int32_t shadowY = 0,
                int32_t shadowOffsetX = 0, int32_t shadowOffsetY = 0, int32_t formatFlags = 0);
    /// Compares every field but `DTFlags`; false for none.
    bool Equal(const Ref<class TextStyle>& other) const;
    /// A copy of what `Equal` compares.
    Ref<class TextStyle> Clone() const;
    /// Reads a section of a define file. Numbers are brought into range by a remainder.
    void FromIniFile(const Ref<core7::DefineFile>& defineFile, const String& sectionName);

    /// The brushes of the two colours, made on first use. Once made they don't follow the fields.
    Ref<GpBrush> TextBrush();
    Ref<GpBrush> ShadowBrush();
    /// A pen of the shadow's colour, twice `ShadowX` wide, the same way.
    Ref<GpPen> ShadowPen();

    /// The shadow takes part only with a draw style above 0. Nothing is brought into range.
    void ReadProperties(const Ref<ole::PropertyBag>& propBag);
    void WriteProperties(const Ref<ole::PropertyBag>& propBag) const;

    // Drawing and measuring. The alignment of the style replaces that of the flags. None for a
    // font is replaced, in the caller's variable, by a new default one. A null context measures on
    // the screen.
    /// The width of the text in the ANSI code page, with `ShadowX`, in every draw style. The
    /// argument `Width` has no effect.
    int32_t TextWidth(gdi::HDC hDC, const String& Text, uint32_t Flags, Ref<class LFont>& Font,
                      int32_t Width = 0) const;
    /// The height of the text in lines of `Width`, with `ShadowY`. Draw styles 1 to 5 measure
    /// nothing: their answer is `ShadowY` + 2147483647, wrapped, and is not to be used.
    int32_t TextHeight(gdi::HDC hDC, const String& Text, uint32_t Flags, Ref<class LFont>& Font,
                       int32_t Width) const;
    /// Paints the text in the rectangle. Lines that are too long end in an ellipsis, unless the
    /// flags ask for another kind.
    void DrawText(gdi::HDC hDC, const String& Text, uint32_t Flags, Ref<class LFont>& LFont,
                  int32_t x1, int32_t y1, int32_t x2, int32_t y2);

private:
    uint32_t AlignedFlags(uint32_t flags) const;
    gdi::RECT AlignRectangle(gdi::HDC hDC, const String& text, gdi::RECT rect,
                             uint32_t& flags) const;
    void PaintByStyle(gdi::HDC hDC, const String& text, gdi::RECT rect, uint32_t flags,
                      COLORREF& oldColor);
    void PaintTextOnce(gdi::HDC hDC, const String& text, const gdi::RECT& rect,
                       uint32_t flags) const;
    void PaintCopies(gdi::HDC hDC, const String& text, gdi::RECT rect, uint32_t flags,
                     std::span<const gdi::POINT> places) const;

    void PaintBlurredShadow(gdi::HDC hDC, const String& text, const gdi::RECT& rect);
    void PaintBlurred(const String& text, int32_t width, int32_t height);
    void DrawOn(gdi::HDC hDC, const String& text, const gdi::RECT& rect, const Ref<GpBrush>& brush);

    // Made by the first drawing and by the accessors, and kept.
    Ref<GpGraphics> mGraphics;
    Ref<GpStringFormat> mStringFormat;
    Ref<class LFont> mFont;  ///< of the last drawing
    Ref<GpPen> mShadowPen;
    Ref<GpBrush> mTextBrush;
    Ref<GpBrush> mShadowBrush;
    Ref<cAlphaDIBSection> mSurface;
};

}  // namespace vxgui
