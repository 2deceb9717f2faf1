#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "vxgui/base/Event.h"
#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"
#include "vxgui/base/Variant.h"
#include "vxgui/pixels/ARGB.h"
#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/ole.h"
#include "vxgui/surface/ARGBArray.h"
#include "vxgui/surface/NineGridRecord.h"

namespace vxgui {

namespace gdiplus {
class GpBitmap;
}
class GpBitmap;
class IColorAdjust;

enum AlphaDIBSectionConst : int32_t {
    /// The colour key, a COLORREF, wherever none is given.
    DefaultTransColor = 0xFF00FF,
};

/// The pixel container: 32 bits a pixel in plain memory, selected into a device context of its
/// own, so that drawing calls and the software loops see the same bytes. A pixel is the bytes
/// `Blue`, `Green`, `Red`, `Alpha`; a row is `Width` pixels without padding; the first row in
/// memory is the bottom row of the picture. Whether colours are premultiplied is the caller's
/// business. Booleans are false on failure; an empty surface answers 0 and draws nothing.
///
/// Operations are virtual, so that one object can stand in for another.
class VXGUI_API cAlphaDIBSection : public Object, public ole::Persistent {
public:
    /// Bits of `Flags`; a re-created surface starts from the first two set.
    static constexpr uint32_t kUseDrawDib = 1;
    static constexpr uint32_t kUseMsImag32 = 2;
    static constexpr uint32_t kPremultiplied = 0x80000000;

    cAlphaDIBSection();

    // Properties.
    /// True only while the apartment's DrawDib handle is open as well.
    bool UseDrawDib() const;
    void UseDrawDib(bool value);
    bool UseMsImag32() const;
    void UseMsImag32(bool value);
    int32_t TransparentColor() const { return transparentColor_; }
    void TransparentColor(int32_t value) { transparentColor_ = value; }
    int32_t BytesPerScanLine() const;
    int32_t Width() const { return header_.biWidth; }
    int32_t Height() const { return header_.biHeight; }
    gdi::HDC hDC() const { return hDC_; }
    gdi::HBITMAP hDIB() const { return hDIB_; }
    /// The first byte of the pixel memory: `Height` rows of `BytesPerScanLine` bytes.
    void* DIBSectionBitsPtr() const { return bits_; }
    uint32_t Flags() const { return flags_; }
    /// A copy as a picture object; none for an empty surface.
    Ref<ole::Picture> Picture();

    // Creation. Each begins by emptying the surface, unless it says false before.
    virtual bool Create(int32_t Width, int32_t Height);
    /// Keeps `CompatibleDC` for all later creations.
    virtual bool CreateWithCompatibleDC(int32_t Width, int32_t Height, gdi::HDC CompatibleDC);
    /// Makes a bitmap of the size in the surface's header; the surface does not own it.
    virtual bool CreateDIB(gdi::HDC lHDC, int32_t lWidth, int32_t lHeight, gdi::HBITMAP& hDIB);
    virtual void ClearUp();
    /// Hands the bitmap to the caller; the size and the pixel pointer stay as they were.
    virtual gdi::HBITMAP ExtractDib();

    // Loading.
    virtual bool CreateFromPictureFile(const String& Filename);
    virtual bool CreateFromByteArray(const ByteArray& b, bool TGAFormat = false);
    virtual bool CreateFromPtr(const void* lpData, int32_t nSize, bool TGAFormat = false);
    virtual bool CreateFromTGAPtr(const void* lpData, int32_t nSize);
    virtual bool CreateFromPicture(const Ref<ole::Picture>& picThis);
    virtual bool CreateFromHBitmap(gdi::HBITMAP hBMP);
    /// For device bitmaps: a DIB section is refused.
    virtual bool FromHBITMAP(gdi::HBITMAP hBMP, int32_t X = 0, int32_t Y = 0, int32_t w = -1,
                             int32_t h = -1);
    /// Of a GDI+ bitmap's handle. The rows run from the top there and from the bottom here, so that
    /// the picture stands on its head, and the pixels are straight.
    virtual bool FromHGpBitmap(gdiplus::GpBitmap* hGpBitmap, int32_t X = 0, int32_t Y = 0,
                               int32_t w = -1, int32_t h = -1);
    /// The same of the object; raises for none.
    virtual bool FromGpBitmap(const Ref<GpBitmap>& GpBmp, int32_t X = 0, int32_t Y = 0,
                              int32_t w = -1, int32_t h = -1);
    /// The copy starts at the bottom row of `Src`; `Y` is checked and otherwise not used.
    virtual bool FromAlphaDIBSection(const Ref<cAlphaDIBSection>& Src, int32_t X, int32_t Y,
                                     int32_t Width, const int32_t& Height);
    virtual void LoadPictureBlt(gdi::HDC lHDC, int32_t lSrcLeft = 0, int32_t lSrcTop = 0,
                                int32_t lSrcWidth = -1, int32_t lSrcHeight = -1,
                                uint32_t eRop = 0xCC0020);

    // Pixels.
    /// The pixel with `Blue` in the lowest byte; 0 outside the pixel memory. A column outside
    /// the row counts on into the neighbouring ones.
    virtual int32_t GetPixel(int32_t X, int32_t Y);
    /// Does nothing: write through `DIBSectionBitsPtr`.
    virtual void SetPixel(int32_t X, int32_t Y, int32_t Color);
    /// Straight to premultiplied, once; `Flags` remembers it.
    virtual void PreMultiplyAlpha();
    /// Premultiplied noise.
    virtual void RandomiseBits(bool bGray = false);
    virtual int32_t DrawEdge(uint32_t edge = 5, uint32_t grfFlags = 15);
    /// Text in the font and text colour of the surface's context, as premultiplied pixels that
    /// replace what lay under them. `dwFlags` are those of the platform's call, whose result it
    /// answers; `Lenght` -1 is the whole text.
    virtual int32_t DrawText(const String& Text, gdi::RECT& rc, uint32_t dwFlags,
                             int32_t Lenght = -1);

    /// A view of the pixel memory, to read and write.
    virtual ARGBArray GetARGBArray();
    /// Empties the view; the pixels stay. The result is empty.
    virtual Variant DestroyARGBArray(ARGBArray& DibBitsArray);

    // Painting on a device context. A negative size is the surface's own, except that a
    // destination of `TransPaintPicture` takes the source's.
    virtual void PaintPicture(gdi::HDC lHDC, int32_t lDstLeft = 0, int32_t lDstTop = 0,
                              int32_t lDstWidth = -1, int32_t lDstHeight = -1, int32_t lSrcLeft = 0,
                              int32_t lSrcTop = 0, int32_t lSrcWidth = -1, int32_t lSrcHeight = -1,
                              uint32_t eRop = 0xCC0020);
    virtual void TransPaintPicture(gdi::HDC lHDC, int32_t lDstLeft = 0, int32_t lDstTop = 0,
                                   int32_t lDstWidth = -1, int32_t lDstHeight = -1,
                                   int32_t lSrcLeft = 0, int32_t lSrcTop = 0,
                                   int32_t lSrcWidth = -1, int32_t lSrcHeight = -1,
                                   int32_t crTransparent = DefaultTransColor);
    /// Expects premultiplied pixels with `bHasAlphaChannel` at a constant alpha of 255.
    virtual void AlphaPaintPicture(gdi::HDC lHDC, int32_t lDstLeft = 0, int32_t lDstTop = 0,
                                   int32_t lDstWidth = -1, int32_t lDstHeight = -1,
                                   int32_t lSrcLeft = 0, int32_t lSrcTop = 0,
                                   int32_t lSrcWidth = -1, int32_t lSrcHeight = -1,
                                   uint8_t lConstantAlpha = 255, bool bHasAlphaChannel = true);

    // Scaling and smoothing.
    /// A new surface of that size, height first; none when it can't be made. At the surface's own
    /// size it is a copy, at any other its alpha is 0 throughout.
    virtual Ref<cAlphaDIBSection> Resample(int32_t lNewHeight, int32_t lNewWidth);
    /// Each pixel becomes the mean of those around it; with `UseColor` all pixels then take
    /// `Color`, a COLORREF, under the blurred alpha.
    virtual void blur(int32_t BlurWidth, int32_t BlurHeight, int32_t UseColor, int32_t Color);
    /// Blurs all four channels, each direction by its own radius; what lies outside counts as
    /// transparent. 0, or below 0 for an empty surface.
    virtual int32_t GaussianBlur(int32_t radiusX = 4, int32_t radiusY = 4);
    /// The same for a rectangle of pixels in memory order, ends included; a second corner that
    /// is under 1 or outside is the last column or row.
    virtual int32_t GaussianBlurEx(int32_t radiusX = 4, int32_t radiusY = 4, int32_t x1 = 0,
                                   int32_t y1 = 0, int32_t x2 = 0, int32_t y2 = 0);

    // Transparency.
    /// Alpha 0 where the colour is the key; other pixels keep theirs. The result is empty.
    virtual Variant SetTransColor(int32_t Color = DefaultTransColor);
    /// Alpha 0 where the colour is the key, 255 elsewhere. The result is empty.
    virtual Variant SetTransColor2(int32_t Color = DefaultTransColor);
    /// Does nothing. The result is empty.
    virtual Variant SetTransColor3(int32_t Color = DefaultTransColor, int32_t dl = 3);
    /// The region of all pixels that are not the key; the caller owns it.
    virtual gdi::HRGN GetMaskRgn(int32_t TransColor = DefaultTransColor);
    /// Whether the alpha differs within the rectangle (device coordinates, ends included) from
    /// that of the first pixel in memory, or that one is neither 0 nor 255.
    virtual bool HasAlphaChannel(int32_t xStart = 0, int32_t yStart = 0, int32_t xEnd = -1,
                                 int32_t yEnd = -1);

    // Keeping. docs/formats.md has the forms; a block that can't be read gives false and leaves
    // the surface as it was.
    virtual void ToByteArray(ByteArray& b, int16_t Flags);
    virtual bool FromByteArray(const ByteArray& b);
    virtual bool FromLp(const void* lp, int32_t SIZE);
    /// The bitmap header and the pixels alone; the compatible context is the screen from then on.
    virtual bool DibFromLp(const void* lp, int32_t SIZE);
    virtual void ReadProperties(const Ref<ole::PropertyBag>& PropBag);
    /// Bit 0 of `Flags` compresses.
    virtual void WriteProperties(const Ref<ole::PropertyBag>& PropBag, int32_t Flags = 0);
    // A surface that is stored in its own right is compressed.
    void SaveTo(const Ref<ole::PropertyBag>& bag) override { WriteProperties(bag, 1); }
    void RestoreFrom(const Ref<ole::PropertyBag>& bag) override { ReadProperties(bag); }
    /// A BMP file in memory; false, and the array stays, for a surface without pixels.
    virtual bool SaveToByteArray(ByteArray& ByteArray);
    /// Writes a BMP file. Raises when it can't be created; a failed write gives false and leaves
    /// a part of it.
    virtual bool SavePicture(const String& sFileName);
    /// Writes the same file whole or not at all: false, for whatever reason, leaves what was there.
    bool SavePictureSafely(const String& sFileName);
    /// Whether both have the same serialized form: pixels, size, `TransparentColor`, `Flags`.
    virtual bool Equal(const Ref<cAlphaDIBSection>& Item);

    // Adjusting colours. A transaction keeps a snapshot of the pixels, which `AdjustColor` starts
    // from each time; the other two work on the pixels as they are and need none. Alpha stays.
    virtual void BeginAdjustColor();
    virtual void CommitAdjustColor();
    /// Brings the snapshot's pixels back; the transaction goes on.
    virtual void ResetAdjustColor();
    virtual void RollbackAdjustColor();
    /// Rows count from the top; ends of -1 are the last.
    virtual void AdjustColor(const Ref<IColorAdjust>& ColorAdjust, int32_t xStart = 0,
                             int32_t yStart = 0, int32_t xEnd = -1, int32_t yEnd = -1);
    /// The hue in degrees, the others in percent. Rows count from the top. `bRaiseEvent`: 1 raises
    /// `PreviewAdjust` at the end, 2 after each row.
    virtual void AdjustHLS(float hue, float Luminance, float Saturation, bool Colourize,
                           int32_t bRaiseEvent = 0, int32_t xStart = 0, int32_t yStart = 0,
                           int32_t xEnd = -1, int32_t yEnd = -1);
    /// Fractions of full scale. Rows are those of the memory, and `xEnd` is the offset in bytes
    /// of the last pixel of a row.
    virtual void AdjustRGB(float Red, float Green, float Blue, int32_t xStart = 0,
                           int32_t yStart = 0, int32_t xEnd = -1, int32_t yEnd = -1);
    /// Opens the dialog that does it; false, with the pixels as they were, when it was cancelled or
    /// no form toolkit can show it.
    virtual bool ShowAdjustHLS();
    /// An adjustment's progress: X, Y, and a flag by which a listener stops `AdjustHLS`.
    Event<int32_t, int32_t, bool&> PreviewAdjust;

    // For the library's own classes.
    /// `Mode`: bits 8 to 11 hold 0x100 for the colour key, 0x200 for alpha, else plain copy; bits
    /// 0 to 7 the constant alpha.
    VXGUI_LOCAL void PaintByMode(gdi::HDC hDC, int32_t lDstLeft, int32_t lDstTop, int32_t lDstWidth,
                                 int32_t lDstHeight, int32_t lSrcLeft, int32_t lSrcTop,
                                 int32_t lSrcWidth, int32_t lSrcHeight, int32_t Mode);
    /// Paints a part of the surface into the surface itself with four margins kept.
    VXGUI_LOCAL void PaintNineGrid(const NineGridRecord& grid);
    /// `HasAlphaChannel` of the whole, answered once until `ClearUp`.
    VXGUI_LOCAL bool HasAlphaCached();
    /// Pixels of the colour (in pixel form, 24 bits) become 0, all others opaque black.
    VXGUI_LOCAL void MaskFromColor(int32_t colour);
    /// Scales the colours to the size of `dst`, whose alpha stays. False when one has no pixels.
    VXGUI_LOCAL bool ResampleBilinear(const Ref<cAlphaDIBSection>& dst);
    /// The pixels whose memory is really there, in memory order: none when the surface is
    /// empty or its bitmap has gone, fewer than `Width` times `Height` for a bitmap that a
    /// stored header made smaller.
    VXGUI_LOCAL std::span<ARGB> Pixels() const;
    /// `DIBSectionBitsPtr`, or null once its bitmap has gone.
    VXGUI_LOCAL void* LiveBits() const;
    /// Fills the surface with a rectangle of another, which starts `firstRow` rows of memory up.
    VXGUI_LOCAL void CopyRows(const cAlphaDIBSection& source, int32_t x, int32_t firstRow);

    /// Writes a BMP file of this surface's header and the pixels at `bits`, which are as many as
    /// the surface has.
    VXGUI_LOCAL bool SaveToBmpFile(const void* bits, const String& name);
    VXGUI_LOCAL static String SystemErrorText(uint32_t code);
    /// False only if a write succeeded and wrote all.
    VXGUI_LOCAL static bool WriteFailed(bool result, size_t wanted, size_t written);

protected:
    ~cAlphaDIBSection() override;

private:
    enum class AlphaState : int32_t { Yes = -1, Unknown = 0, No = 1 };

    struct Snapshot;

    void Empty();
    void RaisePreview(int32_t xEnd, int32_t y, bool& cancel) const;
    /// Takes a bitmap and its context over in place of what the surface had.
    void Adopt(gdi::HDC dc, gdi::HBITMAP bitmap, void* bits, const gdi::BITMAPINFOHEADER& header);
    /// Bytes of the pixel memory, 0 once its bitmap has gone.
    size_t MemorySize() const;

    gdi::HBITMAP hDIB_ = nullptr;
    gdi::HGDIOBJ oldBitmap_ = nullptr;
    gdi::HDC hDC_ = nullptr;
    void* bits_ = nullptr;
    gdi::HBITMAP bitsOwner_ = nullptr;  ///< the bitmap that `bits_` belongs to
    gdi::HDC compatibleDC_ = nullptr;
    gdi::BITMAPINFOHEADER header_{};
    int32_t transparentColor_ = DefaultTransColor;
    AlphaState alphaState_ = AlphaState::Unknown;
    /// What `BeginAdjustColor` keeps, row by row of memory; null when no transaction is open.
    std::shared_ptr<Snapshot> snapshot_;
    Ref<Object> dialog_;  ///< a frmAdjustHLS once it has been shown
    uint32_t flags_ = kUseDrawDib | kUseMsImag32;
};

}  // namespace vxgui
