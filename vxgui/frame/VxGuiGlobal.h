#pragma once

#include "vxgui/base/Variant.h"
#include "vxgui/platform/gdiplus_types.h"
#include "vxgui/platform/ole.h"

namespace vxgui {

class GpBrush;
class GpColor;
class GpFont;
class GpGraphics;
class GpPen;
class GpStringFormat;

/// The library's global object: operations that a host can call without making anything. It has
/// no state of its own.
class VXGUI_API VxGuiGlobal : public Object {
public:
    VxGuiGlobal();

    /// Whether the apartment prefers the platform's own AlphaBlend and TransparentBlt to the
    /// software blits. False makes every surface use the software blits.
    bool UseSystemAlphaAlphaBlend() const;
    void UseSystemAlphaAlphaBlend(bool value);

    // Loading pictures. None when it can't be done; nothing raises. Files and blocks of memory may
    // be BMP, GIF, ICO, JPEG, PNG, TGA or TIFF. A background of -1 is white.
    Ref<ole::Picture> LoadPicture2(const String& Filename);
    Ref<ole::Picture> LoadPictureFromFile(const String& Filename, int32_t BackgraundColor = -1);
    Ref<ole::Picture> LoadPictureFromMemAddr(const void* lpMem, int32_t nSize,
                                             bool TGAFormat = false, int32_t BackgraundColor = -1);
    Ref<ole::Picture> LoadPictureFromByteArray(const ByteArray& abPic, bool TGAFormat = false,
                                               int32_t BackgraundColor = -1);
    Ref<ole::Picture> LoadPictureFromGdiHandle(gdi::HGDIOBJ GDIHandle, int16_t PicType = 1,
                                               bool DeleteGDIHandleWhenDestroyed = true);
    /// `Flags` names up to three attempts by its hexadecimal digits, the lowest first: 1 GDI+,
    /// 2 the platform's loader, 3 TGA, any other none.
    Ref<ole::Picture> PictureFromMemAddr(const void* lpBits, int32_t nSize, int32_t Flags);
    Ref<ole::Picture> PictureFromByteArray(const ByteArray& abPic, int32_t Flags);
    Ref<ole::Picture> PictureFromFile(const String& Filename, int32_t Flags);
    /// The bytes of a picture as a file of its kind. False, and the array stays, when there are
    /// none.
    bool GetPictureBits(const Ref<ole::Picture>& pic, ByteArray& abPic);

    /// The file kinds of the open-picture dialog, "name:patterns|name:patterns".
    String PictureFileFilter() const;
    /// Asks the user for a picture file; false when none was chosen. An empty caption is the
    /// dialog's own. The next call opens on the kind of file that was chosen last.
    bool ShowOpenPictureFile(String& picFileName, int32_t Owner = -1,
                             const String& dlgCaption = {});

    /// Blends a rectangle of one context over one of another, by the blits that the switch says.
    /// Answers 0, whatever happens.
    int32_t AlphaBlend(gdi::HDC hdcDst, int32_t nXOriginDst, int32_t nYOriginDst, int32_t nWidthDst,
                       int32_t nHeightDst, gdi::HDC hdcSrc, int32_t nXOriginSrc,
                       int32_t nYOriginSrc, int32_t nWidthSrc, int32_t nHeightSrc,
                       uint8_t lConstantAlpha = 255, bool bHasAlphaChannel = true);
    /// The same, but copies what isn't of the key colour, a COLORREF.
    int32_t TransparentBlt(gdi::HDC hdcDst, int32_t nXOriginDst, int32_t nYOriginDst,
                           int32_t nWidthDst, int32_t hHeightDst, gdi::HDC hdcSrc,
                           int32_t nXOriginSrc, int32_t nYOriginSrc, int32_t nWidthSrc,
                           int32_t nHeightSrc, int32_t cTransparentColor);

    /// Draws a picture, in the cheapest way that honours `Alpha` and `TransparentColor` (a
    /// COLORREF, -1 for none). A size of -1 is the rest of the picture. An icon is drawn whole and
    /// opaque or not at all; a size below 0 is its own. A 32-bit bitmap of uniform alpha is drawn
    /// with a key even where none is given. Answers 0, whatever happens.
    int32_t PaintPicture(gdi::HDC hdcDst, const Ref<ole::Picture>& Picture, int32_t nXOriginDst = 0,
                         int32_t nYOriginDst = 0, int32_t nWidthDst = -1, int32_t nHeightDst = -1,
                         int32_t nXOriginSrc = 0, int32_t nYOriginSrc = 0, int32_t nWidthSrc = -1,
                         int32_t nHeightSrc = -1, uint8_t Alpha = 255,
                         int32_t TransparentColor = -1);
    /// An image that the host disposes of; null when the file can't be read.
    gdiplus::GpImage* GdipLoadImageFromFile(const String& Filename);
    /// Draws an image, and answers whether that succeeded. A source size of -1 is the image's, a
    /// target size of -1 the source's. `TransparentColor` has no effect.
    int32_t GdipPaintPicture(gdi::HDC hdcDst, gdiplus::GpImage* GdipLoadImage,
                             int32_t nXOriginDst = 0, int32_t nYOriginDst = 0,
                             int32_t nWidthDst = -1, int32_t nHeightDst = -1,
                             int32_t nXOriginSrc = 0, int32_t nYOriginSrc = 0,
                             int32_t nWidthSrc = -1, int32_t nHeightSrc = -1, uint8_t Alpha = 255,
                             int32_t TransparentColor = -1);

    /// Draws text with a shadow: `Style` 1 a soft one, 2 a blurred black one, 3 a glow; any other
    /// draws nothing. With DT_CALCRECT it only measures, into the rectangle. Answers 0.
    int32_t DrawShadowTextEx(gdi::HDC hDC, const String& pszText, gdi::RECT* lpRect,
                             uint32_t dwFlags = 0, int32_t Style = 0, int32_t cch = -1,
                             int32_t TextColor = 0, int32_t ShadowColor = 0, int32_t ShadowX = 0,
                             int32_t ShadowY = 0, int32_t ShadowOffsetX = 0,
                             int32_t ShadowOffsetY = 0);
    /// Draws text with a soft shadow, and answers its height. The top byte of `crShadow` is the
    /// shadow's alpha; none given is opaque. With DT_CALCRECT it only measures, into the rectangle.
    int32_t DrawShadowText(gdi::HDC hDC, const String& pszText, gdi::RECT* lpRect, int32_t crText,
                           int32_t crShadow, uint32_t dwFlags = 0, int32_t cch = -1,
                           int32_t ixOffset = 3, int32_t iyOffset = -2, int32_t ShadowX = 4,
                           int32_t ShadowY = 5);
    /// Breaks text into lines of the rectangle's width and draws them; -1 for `Align` spreads the
    /// words over the width, else it is a text alignment, which the context keeps. Answers the
    /// height of all lines.
    int32_t DrawJustifiedText(gdi::HDC hDC, const String& Text, int32_t nCount,
                              const gdi::RECT* lpRect, int32_t Align);

    /// Draws text as filled outlines with a stroke around them, at a point. What is left out is
    /// taken from the graphics' context: the font, of 20 points at least, the colour of the text,
    /// and its complement for the pen. The graphics keeps its best modes. Answers 0.
    int32_t DrawOutLineText(const Ref<GpGraphics>& graphics, const String& Text, int32_t X,
                            int32_t Y, const Ref<GpFont>& Font = nullptr,
                            const Ref<GpBrush>& TextBrush = nullptr,
                            const Ref<GpPen>& OutLinePen = nullptr,
                            const Ref<GpStringFormat>& StringFormat = nullptr);
    /// Draws text with a soft shadow, black without a colour. Font and text colour are the
    /// context's where they are left out. Failures are shown to the user. Answers 0.
    int32_t GpDrawShadowText(const Ref<GpGraphics>& graphics, const String& Text,
                             const gdiplus::GpRectF& pRect,
                             const Ref<GpColor>& ShadowColor = nullptr, int32_t ShadowX = 4,
                             int32_t ShadowY = 5, int32_t ixOffset = 2, int32_t iyOffset = 2,
                             const Ref<GpFont>& Font = nullptr,
                             const Ref<GpStringFormat>& StringFormat = nullptr,
                             const Ref<GpBrush>& TextBrush = nullptr);

    /// A command and its three operands; a failure inside is ignored, and leaves the result
    /// empty, as an unknown command does.
    ///
    /// {"LoadThemeSet", the ThemeSet, a core7::DefineFile, the folder of its pictures} fills the
    /// set and gives 0.
    Variant Execute(const VariantArray& P);

protected:
    ~VxGuiGlobal() override;
};

/// The global object of the calling apartment, which is made on first use.
VXGUI_API VxGuiGlobal& Global();

}  // namespace vxgui
