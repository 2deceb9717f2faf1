#pragma once

#include <variant>

#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/text/LFonts.h"
#include "vxgui/text/TextStyles.h"
#include "vxgui/theme/FrameTable.h"
#include "vxgui/theme/Margin.h"
#include "vxgui/theme/NineSlice.h"
#include "vxgui/theme/StateList.h"
#include "vxgui/theme/StripScales.h"
#include "vxgui/theme/ThemeEnums.h"
#include "vxgui/theme/ThemeOwner.h"

namespace vxgui {

class DefineSection;
class Scaling;
class ThemeSet;
namespace compiled {
class ItemFields;
}

/// Where the pictures of a skin lie: in a folder, or in a style module's resources of the type
/// "Image".
using UisSource = std::variant<String, kernel::HMODULE>;

/// One skin element: all that is needed to paint one kind of control in any of its states. It
/// holds a background image cut into frames, a smaller glyph with frames of its own, margins that
/// say how the image is sliced and where content goes, and for each state a frame, a font, a text
/// style and a colour. The host sets `State` and calls the drawing operations.
///
/// Images are shared, never copied. Sizes are pixels.
class VXGUI_API ThemeItem : public Object, public ole::Persistent {
public:
    ThemeItem();

    // The image strip.
    uint8_t ImageAlpha() const { return imageAlpha_; }
    void ImageAlpha(uint8_t value) { imageAlpha_ = value; }
    Ref<cAlphaDIBSection> Image() const { return image_; }
    void Image(const Ref<cAlphaDIBSection>& value) { image_ = value; }
    /// An E_TRANSMODE. Setting `PerPixel` premultiplies the image.
    int32_t TransMode() const;
    void TransMode(int32_t value);
    int32_t FrameCount() const { return frameCount_; }
    /// Ignored unless above 0.
    void FrameCount(int32_t value);
    int32_t FrameOrder() const { return frames_.order; }
    /// Ignored unless -1, 0 or 1.
    void FrameOrder(int32_t value);
    /// Directions and flags read as -1 for true; any value but 0 sets them.
    int32_t FrameVert() const { return Bit(kFrameVert); }
    void FrameVert(int32_t value) { Bit(kFrameVert, value); }
    /// An E_IMAGETILE in the low four bits of `ImageFlags`; a larger value reaches further bits.
    int32_t Tile() const;
    void Tile(int32_t value);
    int32_t TileLeft() const { return Bit(kTileLeft); }
    void TileLeft(int32_t value) { Bit(kTileLeft, value); }
    int32_t TileTop() const { return Bit(kTileTop); }
    void TileTop(int32_t value) { Bit(kTileTop, value); }
    int32_t TileRight() const { return Bit(kTileRight); }
    void TileRight(int32_t value) { Bit(kTileRight, value); }
    int32_t TileBottom() const { return Bit(kTileBottom); }
    void TileBottom(int32_t value) { Bit(kTileBottom, value); }
    uint32_t ImageFlags() const { return imageFlags_; }
    void ImageFlags(uint32_t value) { imageFlags_ = value; }
    /// The size of one frame.
    int32_t ImageWidth() const;
    int32_t ImageHeight() const;

    // The glyph strip.
    Ref<cAlphaDIBSection> Glyph() const { return glyph_; }
    void Glyph(const Ref<cAlphaDIBSection>& value) { glyph_ = value; }
    int32_t GlyphTransMode() const;
    void GlyphTransMode(int32_t value);
    int32_t GlyphAlign() const { return glyphAlign_; }
    void GlyphAlign(int32_t value) { glyphAlign_ = value; }
    /// A stored value below 1 is first replaced by `FrameCount`.
    int32_t GlyphFrames();
    void GlyphFrames(int32_t value) { glyphFrameCount_ = value; }
    uint8_t GlyphAlpha() const { return glyphAlpha_; }
    void GlyphAlpha(uint8_t value) { glyphAlpha_ = value; }
    int32_t GlyphFrameVert() const { return Bit(kGlyphFrameVert); }
    void GlyphFrameVert(int32_t value) { Bit(kGlyphFrameVert, value); }

    // Composite setters.
    /// A colour key with an alpha below 253 becomes per-pixel alpha at once.
    void SetImage(const Ref<cAlphaDIBSection>& adib, int32_t FrameCount, int32_t FrameVert,
                  int32_t TransMode, uint8_t Alpha = 255, int32_t TransColor = DefaultTransColor);
    void SetImagePicture(const Ref<ole::Picture>& Picture, int32_t FrameCount, int32_t FrameVert,
                         int32_t TransMode, uint8_t Alpha = 255,
                         int32_t TransColor = DefaultTransColor);
    void SetGlyph(const Ref<cAlphaDIBSection>& adib, int32_t FrameCount, int32_t FrameVert,
                  int32_t TransMode, uint8_t Alpha = 255, int32_t TransColor = DefaultTransColor,
                  int32_t GlyphAlign = LeftCenter);
    void SetGlyphImage(const Ref<cAlphaDIBSection>& adib, int32_t Frames = 0,
                       int32_t GlyphTransMode = 0, int32_t GlyphAlign = LeftCenter);
    void SetGlyphImagePicture(const Ref<ole::Picture>& Picture, int32_t Frames,
                              int32_t GlyphTransMode, int32_t GlyphAlign = LeftCenter);
    void SetTile(int32_t Tile, int32_t TileLeft = 0, int32_t TileTop = 0, int32_t TileRight = 0,
                 int32_t TileBottom = 0);

    // Margins.
    void SetImageMargin(int32_t Left = 0, int32_t Top = 0, int32_t Right = 0, int32_t Bottom = 0);
    void SetGlyphMargin(int32_t Left = 0, int32_t Top = 0, int32_t Right = 0, int32_t Bottom = 0);
    void GetGlyphMargin(int32_t& Left, int32_t& Top, int32_t& Right, int32_t& Bottom) const;
    void SetIconMargin(int32_t Left = 0, int32_t Top = 0, int32_t Right = 0, int32_t Bottom = 0);
    void GetIconMargin(int32_t& Left, int32_t& Top, int32_t& Right, int32_t& Bottom) const;
    void SetContentMargin(int32_t Left = 0, int32_t Top = 0, int32_t Right = 0, int32_t Bottom = 0);
    void GetContentMargin(int32_t& Left, int32_t& Top, int32_t& Right, int32_t& Bottom) const;
    int32_t ContentLeft() const { return contentMargin_.left; }
    void ContentLeft(int32_t value) { contentMargin_.left = value; }
    int32_t ContentTop() const { return contentMargin_.top; }
    void ContentTop(int32_t value) { contentMargin_.top = value; }
    int32_t ContentRight() const { return contentMargin_.right; }
    void ContentRight(int32_t value) { contentMargin_.right = value; }
    int32_t ContentBottom() const { return contentMargin_.bottom; }
    void ContentBottom(int32_t value) { contentMargin_.bottom = value; }
    int32_t ImageMarginLeft() const { return imageMargin_.left; }
    void ImageMarginLeft(int32_t value) { imageMargin_.left = value; }
    int32_t ImageMarginTop() const { return imageMargin_.top; }
    void ImageMarginTop(int32_t value) { imageMargin_.top = value; }
    int32_t ImageMarginRight() const { return imageMargin_.right; }
    void ImageMarginRight(int32_t value) { imageMargin_.right = value; }
    int32_t ImageMarginBottom() const { return imageMargin_.bottom; }
    void ImageMarginBottom(int32_t value) { imageMargin_.bottom = value; }

    // The icon.
    int32_t IconAlign() const { return iconAlign_; }
    void IconAlign(int32_t value) { iconAlign_ = value; }
    int32_t IconTransMode() const { return iconTransMode_; }
    void IconTransMode(int32_t value) { iconTransMode_ = value; }
    int32_t IconWidth() const { return iconWidth_; }
    void IconWidth(int32_t value) { iconWidth_ = value; }
    int32_t IconHeight() const { return iconHeight_; }
    void IconHeight(int32_t value) { iconHeight_ = value; }
    /// A free number for the host.
    int32_t BackgroundEffect() const { return backgroundEffect_; }
    void BackgroundEffect(int32_t value) { backgroundEffect_ = value; }

    // States.
    int32_t State() const { return state_; }
    /// Also fixes the frames that drawing with frame -1 uses, until `State` is set again.
    void State(int32_t value);
    /// The nine entries of the item's own frame table, whatever `FrameOrder` is.
    ByteArray StateFrames() const;
    /// An array of frames, one for each state; the item then goes by its own table.
    void StateFrames(const Variant& value) { frames_.Assign(value); }
    /// The frame of a state with all fallbacks; 255 for none.
    int32_t StateFrame(int32_t State) const;
    ByteArray GlyphStateFrames() const;
    void GlyphStateFrames(const Variant& value) { glyphFrames_.Assign(value); }
    int32_t GlyphStateFrame(int32_t State) const;
    /// "Normal", "MouseOver" ...; "State_#" and the number for any other value.
    static String StateName(int32_t State);

    // Colours, fonts and styles of the states.
    /// 0 without an owner.
    int32_t StateColour(int32_t State) const;
    int32_t CurrentColour() const { return StateColour(state_); }
    Ref<vxgui::TextStyles> TextStyles();
    void TextStyles(const Ref<vxgui::TextStyles>& value) { textStyles_ = value; }
    /// Leaves the collection empty, whatever it is given.
    void LetTextStyles(const Ref<vxgui::TextStyles>& value);
    /// The state's own entry, or none.
    Ref<TextStyle> StateTextStyle(int32_t State) const;
    void StateTextStyle(int32_t State, const Ref<TextStyle>& value);
    /// The style to draw with; never none.
    Ref<TextStyle> GetStateTextStyle(int32_t State) const;
    Ref<TextStyle> CurrentTextStyle() const { return GetStateTextStyle(state_); }
    /// Drops the entries that say no more than the Normal one.
    void MinimizeTextStyles();
    Ref<LFonts> Fonts();
    void Fonts(const Ref<LFonts>& value) { fonts_ = value; }
    void LetFonts(const Ref<LFonts>& value);
    Ref<LFont> StateFont(int32_t State) const;
    void StateFont(int32_t State, const Ref<LFont>& value);
    Ref<LFont> GetStateFont(int32_t State) const;
    Ref<LFont> CurrentFont() const { return GetStateFont(state_); }
    void MinimizeFonts();

    // Drawing.
    /// Image and glyph by one frame number.
    void Draw(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD, int32_t Frame);
    /// A frame of -1 is that of `State`. Frames that the strips don't have paint nothing.
    void DrawBackground(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD, int32_t Frame,
                        int32_t GlyphFrame);

    // Captions and icons.
    /// The room that a caption needs, in the font of state `pState`, with the style's `ShadowX` and
    /// `ShadowY`. A limit of 0 is none. The result is 0. A null context measures on the screen.
    int32_t GetTextWidthHeight(gdi::HDC hDC, const String& Text, int32_t& pWidth, int32_t& pHeight,
                               int32_t MaxWidth = 0, int32_t MaxHeight = 0, uint32_t Flags = 0,
                               int32_t pState = 0) const;
    /// `MaxWidth` has no effect on the width, nor `MaxHeight` on the height.
    int32_t TextWidth(gdi::HDC hDC, const String& Text, uint32_t Flags = 0, int32_t MaxWidth = 0,
                      int32_t MaxHeight = 0, int32_t pState = 0) const;
    int32_t TextHeight(gdi::HDC hDC, const String& Text, uint32_t Flags = 0, int32_t MaxWidth = 0,
                       int32_t MaxHeight = 0, int32_t pState = 0) const;
    /// Paints a caption inside the content margins, in the font and style of the state; -1 is the
    /// item's own. A right or bottom of -1 is that of the image. Both come back less the margin.
    void DrawText(gdi::HDC hDC, const String& Text, uint32_t Flags, int32_t State, int32_t Left,
                  int32_t Top, int32_t& Right, int32_t& Bottom) const;
    void DrawText(gdi::HDC hDC, const String& Text, uint32_t Flags, int32_t State = -1,
                  int32_t Left = 0, int32_t Top = 0) const;
    /// Paints a picture object or a surface at its place inside the icon margins, `IconWidth` by
    /// `IconWidth` pixels or at its own size. Right and bottom come back less the margin; they have
    /// no default. -1 for an object of another kind, else 0.
    int32_t DrawIcon(gdi::HDC hDC, const Ref<Object>& Icon, uint32_t Flags, int32_t State,
                     int32_t Left, int32_t Top, int32_t& Right, int32_t& Bottom) const;
    int32_t DrawIcon(gdi::HDC hDC, const Ref<Object>& Icon, uint32_t Flags, int32_t State = -1,
                     int32_t Left = 0, int32_t Top = 0) const;
    /// A new item with three small triangles in the colours of the states Normal, Focus and
    /// Disabled, on opaque magenta.
    Ref<ThemeItem> CreateMenuArrow() const;

    // High-resolution screens.
    /// The item as it is painted where `Factor` pixels stand for one, 1/4 to 16: everything that
    /// is a size is that many times as large and rounded once - margins, frames, fonts, the reach
    /// of shadows, icons. It draws with the operations of any item, in pixels of the screen. It is
    /// a copy that doesn't follow this item. Raises for another factor, or without the memory.
    Ref<ThemeItem> Scaled(double Factor) const;
    /// The factor that the item was made for; 1 for all that `Scaled` hasn't made.
    double Scale() const { return scale_; }
    /// Supplies a strip of the same frames that is drawn for a scale. `Scaled` takes the smallest
    /// that isn't below its factor, else the largest; margins stay those of scale 1. It counts as
    /// long as the item keeps the `Image` or `Glyph` that it has now.
    void AddImageStrip(double Scale, const Ref<cAlphaDIBSection>& Strip);
    void AddGlyphStrip(double Scale, const Ref<cAlphaDIBSection>& Strip);

    // Keeping. docs/formats.md has the keys.
    /// What a reader is known to hold already isn't stored: `DefImage` as the image, `DefFont` as
    /// the font of Normal, `DefTextStyle` as the style of Normal or Disabled. `Flags` are those of
    /// the surfaces. Entries of states that say no more than Normal are dropped, here too.
    void WriteProperties(const Ref<ole::PropertyBag>& PropBag,
                         const Ref<cAlphaDIBSection>& DefImage = nullptr,
                         const Ref<LFont>& DefFont = nullptr,
                         const Ref<TextStyle>& DefTextStyle = nullptr, int32_t Flags = 0);
    /// What the bag lacks takes the reader's defaults, except that images, fonts and styles stay.
    /// A bag of an unknown version leaves the item as it is. A number that is none raises, with
    /// the item partly read; an image, font or style that can't be read is left out.
    void ReadProperties(const Ref<ole::PropertyBag>& PropBag);
    void SaveTo(const Ref<ole::PropertyBag>& bag) override { WriteProperties(bag); }
    void RestoreFrom(const Ref<ole::PropertyBag>& bag) override { ReadProperties(bag); }
    /// `ReadProperties` for a bag of any version, without the direction that the first had in common for
    /// both strips.
    void ReadProperties_v1(const Ref<ole::PropertyBag>& PropBag);
    /// Four keys that begin with `Name`.
    static void WritePropertiesRECT(const Ref<ole::PropertyBag>& PropBag, const gdi::RECT& rc,
                                    const String& Name);
    static void ReadPropertiesRECT(const Ref<ole::PropertyBag>& PropBag, gdi::RECT& rc,
                                   const String& Name);

    // Copying and comparing.
    /// A copy with surfaces, fonts and styles of its own, and of nothing that a bag doesn't keep.
    /// Drops the source's entries of states that say no more than Normal.
    Ref<ThemeItem> Clone();
    /// Copies the groups that `Flags` (E_COPYTOFLAGS) name. Pictures are shared; so are fonts and
    /// styles by reference. Never copied: frame tables, state, owner. The result is empty.
    Variant CopyTo(const Ref<ThemeItem>& Value, uint32_t Flags);
    /// Compares pictures by their pixels, and frames, fonts and styles as the states 0 to 7 draw
    /// with them. This item's `GlyphAlign` is held against the other's `IconAlign`. False for none.
    bool Equal(const Ref<ThemeItem>& Item);

    // Import.
    /// Reads the section `ItemName` of a UIS skin definition. Image and glyph are emptied first;
    /// a picture that isn't there leaves the item without one. A failure is shown to the user and
    /// answers false, with the item as far as it got.
    bool FromUis(const Ref<core7::DefineFile>& Uis, const UisSource& hDll_Path,
                 const String& ItemName, const String& DefaultImageFilename);

    // For the library's own classes.
    VXGUI_LOCAL Ref<ThemeOwner> Owner() const { return owner_; }
    VXGUI_LOCAL void Owner(const Ref<ThemeOwner>& value) { owner_ = value; }
    /// Fonts and styles that other items have too; none of either changes nothing.
    VXGUI_LOCAL void ShareStates(const Ref<LFonts>& fonts, const Ref<vxgui::TextStyles>& styles);
    VXGUI_LOCAL int32_t CurrentFrame() const { return currentFrame_; }
    VXGUI_LOCAL int32_t CurrentGlyphFrame() const { return currentGlyphFrame_; }
    /// The colour and font numbers that an importer sets.
    struct OwnerNumbers {
        int32_t TextColour = 0, TextColourOver = 0;
        int32_t NormalColour = 0, PressedColour = 0, FocusColour = 0, FocusPressedColour = 0;
        int32_t GroupColour = 0, DisabledColour = 0;
        int32_t NormalFont = 0, PressedFont = 0, FocusFont = 0, FocusPressedFont = 0;
        int32_t GroupFont = 0;
    };
    VXGUI_LOCAL OwnerNumbers& Numbers() { return numbers_; }
    /// What skin definitions carry and nothing here reads: it is kept as it came.
    struct UisNumbers {
        int32_t TextHorzAlignNormal = 0, TextVertAlignNormal = 0;
        int32_t SmartSmallMargins = 0;
        int32_t PartWidth = 0, PartHeight = 0;
        int32_t AnimTimerRate = 0, LoopBackDelay = 0;
        int32_t MouseEnterStartFrame = 0, MouseOverStartFrame = 0;
        int32_t MouseOverStopFrame = 0, MouseLeaveStopFrame = 0, MouseLeaveMode = 0;
    };
    VXGUI_LOCAL UisNumbers& ImportedNumbers() { return imported_; }
    VXGUI_LOCAL Ref<ThemeItem> ScaledBy(Scaling& scaling) const;
    VXGUI_LOCAL std::vector<StripAtScale> ImageStrips() const { return imageScales_.Of(image_); }
    VXGUI_LOCAL std::vector<StripAtScale> GlyphStrips() const { return glyphScales_.Of(glyph_); }
    /// Reads a section of a theme-set define file. Pictures lie in `BasePath`; fonts and styles
    /// are those of `Set`. A list with fewer parts than it must have raises.
    VXGUI_LOCAL void FromThemeDefine(const Ref<core7::DefineFile>& DefineFile,
                                     const String& Section, const Ref<ThemeSet>& Set,
                                     const String& BasePath);

protected:
    ~ThemeItem() override;

private:
    friend class compiled::ItemFields;

    // Bits of `ImageFlags`; their places are part of the file format.
    static constexpr uint32_t kTileMask = 0xF, kTileLeft = 0x10, kTileTop = 0x20, kTileRight = 0x40,
                              kTileBottom = 0x80, kGlyphFrameVert = 0x04000000,
                              kGlyphTrans = 0x08000000, kGlyphPerPixel = 0x10000000,
                              kFrameVert = 0x20000000, kTrans = 0x40000000, kPerPixel = 0x80000000;

    int32_t Bit(uint32_t mask) const { return imageFlags_ & mask ? -1 : 0; }
    void Bit(uint32_t mask, int32_t value);
    void StoreMode(int32_t value, uint32_t transBit, uint32_t perPixelBit);
    int32_t ColourNumber(int32_t state) const;
    int32_t FontNumber(int32_t state) const;
    void PaintImage(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD, int32_t frame);
    void PaintGlyph(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD, int32_t frame);
    void PaintImagePiece(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD, int32_t xS,
                         int32_t yS, int32_t wS, int32_t hS);
    bool IsTranslucent() const { return imageAlpha_ >= 1 && imageAlpha_ <= 252; }
    void TakeLooks(const ThemeItem& from);
    void TakeSizes(const ThemeItem& from, const Scaling& scaling);
    void ScaleImage(const ThemeItem& from, double factor);
    void StretchSinglePixels(gdi::SIZE frame, const Margin& cut);
    void ScaleGlyph(const ThemeItem& from, double factor);
    void PaintIconSurface(gdi::HDC hDC, cAlphaDIBSection& icon, Span x, Span y) const;
    void ReadImage(const DefineSection& read, const String& basePath);
    void ReadGlyph(const DefineSection& read, const String& basePath);
    void ReadUisImage(const DefineSection& read, const UisSource& source, const String& fallback);
    void ReadUisGlyph(const DefineSection& read, const UisSource& source);
    void ReadUisSlices(const DefineSection& read);
    void ReadUisColours(const DefineSection& read);
    void ReadUisFonts(const DefineSection& read);
    void ReadUisAnimation(const DefineSection& read);
    void WriteNumbers(ole::PropertyBag& bag) const;
    void WriteStrips(ole::PropertyBag& bag, int32_t flags) const;
    void WriteIcon(ole::PropertyBag& bag) const;
    void WriteStates(ole::PropertyBag& bag, const Ref<LFont>& knownFont,
                     const Ref<TextStyle>& knownStyle) const;
    void ReadNumbers(const ole::PropertyBag& bag);
    void ReadStrips(const ole::PropertyBag& bag);
    void ReadStates(const ole::PropertyBag& bag);
    void CopyImageProperties(ThemeItem& to) const;
    void CopyGlyphProperties(ThemeItem& to);
    bool EqualsInImage(const ThemeItem& other) const;
    bool EqualsInGlyph(ThemeItem& other);
    bool EqualsInIcon(const ThemeItem& other) const;
    bool EqualsInState(const ThemeItem& other, int32_t state) const;

    int32_t state_ = 0;
    FrameTable frames_;
    FrameTable glyphFrames_;
    StateList<LFonts> fonts_;
    StateList<vxgui::TextStyles> textStyles_;
    Ref<ThemeOwner> owner_;
    Ref<cAlphaDIBSection> image_;
    Ref<cAlphaDIBSection> glyph_;
    int32_t glyphFrameCount_ = 0;
    uint8_t glyphAlpha_ = 255;
    int32_t glyphAlign_ = LeftCenter;
    Margin imageMargin_{4, 4, 4, 4};
    Margin contentMargin_;
    Margin glyphMargin_;
    Margin iconMargin_;
    int32_t iconWidth_ = 0;
    int32_t iconHeight_ = 0;
    int32_t iconAlign_ = Lefttop;
    int32_t iconTransMode_ = 0;
    int32_t backgroundEffect_ = 0;
    uint32_t imageFlags_ = 0;
    uint8_t imageAlpha_ = 255;
    OwnerNumbers numbers_;
    UisNumbers imported_;
    int32_t frameCount_ = 0;
    int32_t currentFrame_ = 0;
    int32_t currentGlyphFrame_ = 0;
    StripScales imageScales_;
    StripScales glyphScales_;
    double scale_ = 1;
    /// How far apart tiles start where that isn't the size of the middle; see `TilePitchOf`.
    struct {
        double x = 0, y = 0;
    } tilePitch_;
};

}  // namespace vxgui
