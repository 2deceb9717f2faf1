#include <cmath>

#include "vxgui/theme/ScaledStrip.h"
#include "vxgui/theme/Scaling.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

bool TilesAcross(int32_t tile) { return tile == TileXTileY || tile == TileXStretchY; }
bool TilesDown(int32_t tile) { return tile == TileXTileY || tile == StretchXTileY; }

gdi::SIZE FrameSize(const cAlphaDIBSection& strip, int32_t frames, bool vertical) {
    if (frames < 2) return {strip.Width(), strip.Height()};
    return {strip.Width() / (vertical ? 1 : frames), strip.Height() / (vertical ? frames : 1)};
}

StripUse UseOf(const Ref<cAlphaDIBSection>& strip, int32_t frames, int32_t vertical, bool keyed) {
    return {strip, frames < 2 ? 1 : frames, vertical != 0, keyed};
}

// A supplied strip goes through what its base went through.
Ref<cAlphaDIBSection> BestStrip(const StripScales& scales, const Ref<cAlphaDIBSection>& base,
                                double factor) {
    Ref<cAlphaDIBSection> best = scales.BestFor(base, factor);
    if (best == base) return base;
    best->TransparentColor(base->TransparentColor());
    if (base->Flags() & cAlphaDIBSection::kPremultiplied) best->PreMultiplyAlpha();
    return best;
}

}  // namespace

void ThemeItem::AddImageStrip(double Scale, const Ref<cAlphaDIBSection>& Strip) {
    imageScales_.Add(image_, Scaling(Scale).Factor(), Strip);
}

void ThemeItem::AddGlyphStrip(double Scale, const Ref<cAlphaDIBSection>& Strip) {
    glyphScales_.Add(glyph_, Scaling(Scale).Factor(), Strip);
}

Ref<ThemeItem> ThemeItem::Scaled(double Factor) const {
    const KeepAlive keep(this);
    Scaling scaling(Factor);
    return ScaledBy(scaling);
}

Ref<ThemeItem> ThemeItem::ScaledBy(Scaling& scaling) const {
    Ref<ThemeItem> scaled = New<ThemeItem>();
    scaled->TakeLooks(*this);
    scaled->TakeSizes(*this, scaling);
    scaled->fonts_ = scaling.Of(fonts_.Get());
    scaled->textStyles_ = scaling.Of(textStyles_.Get());
    scaled->owner_ = scaling.Of(owner_);
    if (scaling.Factor() == 1) return scaled;
    if (image_) scaled->ScaleImage(*this, scaling.Factor());
    if (glyph_) scaled->ScaleGlyph(*this, scaling.Factor());
    return scaled;
}

void ThemeItem::TakeLooks(const ThemeItem& from) {
    state_ = from.state_;
    frames_ = from.frames_;
    glyphFrames_ = from.glyphFrames_;
    image_ = from.image_;
    imageScales_ = from.imageScales_;
    glyph_ = from.glyph_;
    glyphScales_ = from.glyphScales_;
    glyphFrameCount_ = from.glyphFrameCount_;
    glyphAlpha_ = from.glyphAlpha_;
    glyphAlign_ = from.glyphAlign_;
    iconAlign_ = from.iconAlign_;
    iconTransMode_ = from.iconTransMode_;
    backgroundEffect_ = from.backgroundEffect_;
    imageFlags_ = from.imageFlags_;
    imageAlpha_ = from.imageAlpha_;
    numbers_ = from.numbers_;
    imported_ = from.imported_;
    frameCount_ = from.frameCount_;
    currentFrame_ = from.currentFrame_;
    currentGlyphFrame_ = from.currentGlyphFrame_;
}

void ThemeItem::TakeSizes(const ThemeItem& from, const Scaling& scaling) {
    scale_ = from.scale_ * scaling.Factor();
    tilePitch_ = from.tilePitch_;
    imageMargin_ = scaling.Of(from.imageMargin_);
    contentMargin_ = scaling.Of(from.contentMargin_);
    glyphMargin_ = scaling.Of(from.glyphMargin_);
    iconMargin_ = scaling.Of(from.iconMargin_);
    iconWidth_ = scaling.Of(from.iconWidth_);
    iconHeight_ = scaling.Of(from.iconHeight_);
}

void ThemeItem::ScaleImage(const ThemeItem& from, double factor) {
    const gdi::SIZE base = FrameSize(*image_, frameCount_, FrameVert());
    const Margin& cut = from.imageMargin_;
    StretchSinglePixels(base, cut);
    const bool across = TileTop() || TileBottom() || TilesAcross(Tile());
    const bool down = TileLeft() || TileRight() || TilesDown(Tile());
    const ScaledAxis x(base.cx, cut.left, cut.right, factor, across);
    const ScaledAxis y(base.cy, cut.top, cut.bottom, factor, down);
    const bool keyed = TransMode() == Trans && !IsTranslucent();
    const Ref<cAlphaDIBSection> best = BestStrip(from.imageScales_, image_, factor);
    const Ref<cAlphaDIBSection> strip =
        ScaleStrip(UseOf(best, frameCount_, FrameVert(), keyed), base, x, y);
    if (!strip) return;
    image_ = strip;
    tilePitch_ = {x.TilePitch(), y.TilePitch()};
    if (!keyed) return;
    StoreMode(PerPixel, kTrans, kPerPixel);
    imageAlpha_ = 255;
}

// One pixel is stretched rather than tiled, which looks the same. It may have become several, and
// then it must say so.
void ThemeItem::StretchSinglePixels(gdi::SIZE frame, const Margin& cut) {
    if (frame.cx - cut.left - cut.right == 1) {
        TileTop(0), TileBottom(0);
        if (TilesAcross(Tile())) Tile(TilesDown(Tile()) ? StretchXTileY : StretchXStretchY);
    }
    if (frame.cy - cut.top - cut.bottom == 1) {
        TileLeft(0), TileRight(0);
        if (TilesDown(Tile())) Tile(TilesAcross(Tile()) ? TileXStretchY : StretchXStretchY);
    }
}

void ThemeItem::ScaleGlyph(const ThemeItem& from, double factor) {
    const int32_t frames = GlyphFrames();
    const gdi::SIZE base = FrameSize(*glyph_, frames, GlyphFrameVert());
    const bool keyed = GlyphTransMode() == Trans;
    const Ref<cAlphaDIBSection> best = BestStrip(from.glyphScales_, glyph_, factor);
    const Ref<cAlphaDIBSection> strip =
        ScaleStrip(UseOf(best, frames, GlyphFrameVert(), keyed), base, ScaledAxis(base.cx, factor),
                   ScaledAxis(base.cy, factor));
    if (!strip) return;
    glyph_ = strip;
    if (!keyed) return;
    StoreMode(PerPixel, kGlyphTrans, kGlyphPerPixel);
    glyphAlpha_ = 255;
}

}  // namespace vxgui
