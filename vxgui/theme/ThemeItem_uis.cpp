#include "vxgui/base/Rounding.h"
#include "vxgui/frame/Report.h"
#include "vxgui/frame/Services.h"
#include "vxgui/text/DefineSection.h"
#include "vxgui/theme/SkinConfinement.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

constexpr ErrorReporter ReportThemeItemError{"ThemeItem"};

// A constant alpha from here up is opaque.
constexpr uint8_t kOpaqueAlpha = 253;

bool EndsWith(const String& name, const char* ending) {
    return name.Right(4).Lower() == String(ending);
}

// The name of a picture as its source knows it.
String NameIn(const UisSource& source, const String& name) {
    const String* folder = std::get_if<String>(&source);
    return folder ? gServices.pathService().JoinPath({*folder, name}) : name;
}

Ref<cAlphaDIBSection> LoadResource(kernel::HMODULE module, const String& name) {
    core7::ResourceService& resources = gServices.resourceService();
    const ByteArray bytes = resources.ReadResource(module, "Image", name);
    if (resources.IsEmptyArray(bytes)) return nullptr;
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->CreateFromByteArray(bytes, EndsWith(name, ".tga"));
    return surface;
}

Ref<cAlphaDIBSection> LoadFile(const String& path) {
    if (!gServices.pathService().PathExists(path)) return nullptr;
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->CreateFromPictureFile(path);
    return surface;
}

// None when the source has no such picture, an empty surface for one that can't be decoded.
Ref<cAlphaDIBSection> Load(const UisSource& source, const String& name) {
    if (const auto* module = std::get_if<kernel::HMODULE>(&source))
        return LoadResource(*module, name);
    return MaySkinRead(std::get<String>(source), name) ? LoadFile(name) : nullptr;
}

bool IsPicture(const Ref<cAlphaDIBSection>& surface) { return surface && surface->hDIB(); }

// The strips for other scales that the section lists and that are there.
std::vector<StripAtScale> LoadStrips(const DefineSection& read, const char* scalesKey,
                                     const char* imageKey, const UisSource& source,
                                     const String& fallback) {
    std::vector<StripAtScale> strips;
    for (const double scale : ScalesIn(read.Text(scalesKey))) {
        const String name = NameAtScale(read.Text(imageKey, fallback), scale);
        const Ref<cAlphaDIBSection> strip = Load(source, NameIn(source, name));
        if (IsPicture(strip)) strips.push_back({scale, strip});
    }
    return strips;
}

// Where the image's key became alpha, that of its strips does too.
void AddImageStrips(ThemeItem& item, const DefineSection& read, const UisSource& source,
                    const String& fallback) {
    const auto strips = LoadStrips(read, "ImageScales", "Image", source, fallback);
    const bool keyed = !strips.empty() && read.Integer("Trans") != 0;
    for (const auto& [scale, strip] : strips) {
        if (keyed && item.ImageAlpha() < kOpaqueAlpha) strip->SetTransColor(DefaultTransColor);
        item.AddImageStrip(scale, strip);
    }
}

void AddGlyphStrips(ThemeItem& item, const DefineSection& read, const UisSource& source) {
    for (const auto& [scale, strip] : LoadStrips(read, "GlyphScales", "GlyphImage", source, {}))
        item.AddGlyphStrip(scale, strip);
}

// A number that names no colour or font gives way to another one.
int32_t Or(int32_t number, int32_t other) { return number == -1 ? other : number; }

String Decimal(int32_t number) { return String::FromInt(number); }

}  // namespace

void ThemeItem::ReadUisImage(const DefineSection& read, const UisSource& source,
                             const String& fallback) {
    const String name = NameIn(source, read.Text("Image", fallback));
    const Ref<cAlphaDIBSection> surface = Load(source, name);
    if (!surface) return;
    // Formats with an alpha channel are per-pixel by nature, bitmaps on request.
    const auto asksForPerPixel = [&] { return read.Integer("PerPixel") != 0; };
    const bool hasAlpha = EndsWith(name, ".tga") || EndsWith(name, ".png");
    if (hasAlpha || asksForPerPixel()) TransMode(PerPixel);
    if (!IsPicture(surface)) return;
    image_ = surface;
    if (read.Integer("Trans") != 0) TransMode(Trans);
    imageAlpha_ = static_cast<uint8_t>(read.Integer("Alpha", "255"));
    if (TransMode() == Trans && imageAlpha_ < kOpaqueAlpha) {
        image_->SetTransColor(DefaultTransColor);
        if (asksForPerPixel()) TransMode(PerPixel);
    }
    if (TransMode() == PerPixel) image_->PreMultiplyAlpha();
}

void ThemeItem::ReadUisGlyph(const DefineSection& read, const UisSource& source) {
    const String given = read.Text("GlyphImage");
    if (given.empty()) return;
    const Ref<cAlphaDIBSection> surface = Load(source, NameIn(source, given));
    if (!IsPicture(surface)) return;
    glyph_ = surface;
    glyphFrameCount_ = read.Integer("GlyphFrames");
    if (glyphFrameCount_ < 1) glyphFrameCount_ = frameCount_;
    GlyphTransMode(read.Integer("GlyphTransMode"));
    const int32_t row = read.Integer("GlyphVertAlign"), column = read.Integer("GlyphHorzAlign");
    glyphAlign_ = WrapAdd(row, WrapMul(3, column));
    if (glyph_->HasAlphaChannel(0, 0, -1, -1)) glyph_->PreMultiplyAlpha();
}

// Edges tile unless the skin says otherwise; the centre stretches unless it says otherwise.
void ThemeItem::ReadUisSlices(const DefineSection& read) {
    imageMargin_.left = read.Integer("LeftWidth");
    imageMargin_.right = read.Integer("RightWidth");
    imageMargin_.top = read.Integer("TopHeight");
    imageMargin_.bottom = read.Integer("BottomHeight");
    Tile(read.Integer("Tile"));
    TileTop(read.Integer("TileTop", "1"));
    TileBottom(read.Integer("TileBottom", "1"));
    TileLeft(read.Integer("TileLeft", "1"));
    TileRight(read.Integer("TileRight", "1"));
    contentMargin_.left = read.Integer("ContentLeft");
    contentMargin_.right = read.Integer("ContentRight");
    contentMargin_.top = read.Integer("ContentTop");
    contentMargin_.bottom = read.Integer("ContentBottom");
}

// Skins carry two generations of keys, and each fills the other's gap.
void ThemeItem::ReadUisColours(const DefineSection& read) {
    OwnerNumbers& to = numbers_;
    to.TextColour = read.Integer("TextColour", "-1");
    to.TextColourOver = read.Integer("TextColourOver", "-1");
    imported_.TextHorzAlignNormal = read.Integer("TextHorzAlignNormal");
    imported_.TextVertAlignNormal = read.Integer("TextVertAlignNormal");
    const int32_t normal = read.Integer("NormalColour", "-1");
    to.NormalColour = Or(normal, to.TextColour);
    to.TextColour = Or(to.TextColour, normal);
    const int32_t focus = read.Integer("FocusColour", "-1");
    to.FocusColour = Or(focus, to.TextColourOver);
    // The test is on `TextColour`, not on `TextColourOver`: that is meant.
    if (focus != -1 && to.TextColour == -1) to.TextColourOver = focus;
    to.PressedColour = read.Integer("PressedColour", Decimal(to.FocusColour));
    to.FocusPressedColour = read.Integer("FocusPressedColour", Decimal(to.PressedColour));
    to.GroupColour = read.Integer("GroupColour", "-1");
    to.DisabledColour = read.Integer("DisabledColour", "-1");
}

void ThemeItem::ReadUisFonts(const DefineSection& read) {
    OwnerNumbers& to = numbers_;
    to.NormalFont = read.Integer("NormalFont", "-1");
    if (to.NormalFont == -1) to.NormalFont = read.Integer("TextFont", "-1");
    to.FocusFont = read.Integer("FocusFont", "-1");
    if (to.FocusFont == -1) to.FocusFont = read.Integer("TextFontOver", "-1");
    to.FocusFont = Or(to.FocusFont, to.NormalFont);
    const String focus = Decimal(to.FocusFont);
    to.PressedFont = read.Integer("PressedFont", focus);
    to.FocusPressedFont = read.Integer("FocusPressedFont", focus);
    to.GroupFont = read.Integer("GroupFont", focus);
}

void ThemeItem::ReadUisAnimation(const DefineSection& read) {
    imported_.AnimTimerRate = read.Integer("AnimTimerRate");
    imported_.LoopBackDelay = read.Integer("LoopBackDelay");
    imported_.MouseEnterStartFrame = read.Integer("MouseEnterStartFrame");
    imported_.MouseOverStartFrame = read.Integer("MouseOverStartFrame");
    imported_.MouseOverStopFrame = read.Integer("MouseOverStopFrame");
    imported_.MouseLeaveStopFrame = read.Integer("MouseLeaveStopFrame");
    imported_.MouseLeaveMode = read.Integer("MouseLeaveMode");
}

bool ThemeItem::FromUis(const Ref<core7::DefineFile>& Uis, const UisSource& hDll_Path,
                        const String& ItemName, const String& DefaultImageFilename) {
    const KeepAlive keep(this);
    return ReportThemeItemError.Guard("Public Function LoadFromRes", [&] {
        image_ = nullptr;
        glyph_ = nullptr;
        const DefineSection read(Uis, ItemName, "ThemeItem");
        ReadUisImage(read, hDll_Path, DefaultImageFilename);
        frameCount_ = read.Integer("FrameCount");  // unlike the property, 0 is kept
        imported_.PartWidth = read.Integer("PartWidth", "-1");
        imported_.PartHeight = read.Integer("PartHeight", "-1");
        ReadUisGlyph(read, hDll_Path);
        ReadUisSlices(read);
        ReadUisColours(read);
        ReadUisFonts(read);
        imported_.SmartSmallMargins = read.Integer("SmartSmallMargins");
        if (frameCount_ > 1) ReadUisAnimation(read);
        if (image_) AddImageStrips(*this, read, hDll_Path, DefaultImageFilename);
        if (glyph_) AddGlyphStrips(*this, read, hDll_Path);
    });
}

}  // namespace vxgui
