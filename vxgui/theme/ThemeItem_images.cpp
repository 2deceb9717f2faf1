#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

Ref<cAlphaDIBSection> SurfaceFrom(const Ref<ole::Picture>& picture) {
    if (!picture) return nullptr;
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->CreateFromPicture(picture);
    return surface;
}

}  // namespace

void ThemeItem::SetImage(const Ref<cAlphaDIBSection>& adib, int32_t FrameCount, int32_t FrameVert,
                         int32_t TransMode, uint8_t Alpha, int32_t TransColor) {
    const KeepAlive keep(this);
    image_ = adib;
    this->FrameCount(FrameCount);
    this->FrameVert(FrameVert);
    imageAlpha_ = Alpha;
    if (image_) {
        image_->TransparentColor(TransColor);
        // The alpha path can't honour a key, so the key becomes alpha here.
        if (TransMode == Trans && Alpha < 253) {
            image_->SetTransColor(TransColor);
            TransMode = PerPixel;
        }
    }
    this->TransMode(TransMode);
}

void ThemeItem::SetImagePicture(const Ref<ole::Picture>& Picture, int32_t FrameCount,
                                int32_t FrameVert, int32_t TransMode, uint8_t Alpha,
                                int32_t TransColor) {
    SetImage(SurfaceFrom(Picture), FrameCount, FrameVert, TransMode, Alpha, TransColor);
}

void ThemeItem::SetGlyph(const Ref<cAlphaDIBSection>& adib, int32_t FrameCount, int32_t FrameVert,
                         int32_t TransMode, uint8_t Alpha, int32_t TransColor, int32_t GlyphAlign) {
    const KeepAlive keep(this);
    glyph_ = adib;
    glyphFrameCount_ = FrameCount < 1 ? frameCount_ : FrameCount;
    GlyphTransMode(TransMode);
    GlyphFrameVert(FrameVert);
    glyphAlpha_ = Alpha;
    if (glyph_) {
        glyph_->TransparentColor(TransColor);
        if (GlyphTransMode() == PerPixel) glyph_->PreMultiplyAlpha();
    }
    GlyphTransMode(GlyphTransMode());
    glyphAlign_ = GlyphAlign;
}

void ThemeItem::SetGlyphImage(const Ref<cAlphaDIBSection>& adib, int32_t Frames,
                              int32_t GlyphTransMode, int32_t GlyphAlign) {
    const KeepAlive keep(this);
    glyph_ = adib;
    if (glyph_ && GlyphTransMode == PerPixel) glyph_->PreMultiplyAlpha();
    glyphFrameCount_ = Frames > 0 ? Frames : frameCount_;
    this->GlyphTransMode(GlyphTransMode);
    glyphAlign_ = GlyphAlign;
}

void ThemeItem::SetGlyphImagePicture(const Ref<ole::Picture>& Picture, int32_t Frames,
                                     int32_t GlyphTransMode, int32_t GlyphAlign) {
    SetGlyphImage(SurfaceFrom(Picture), Frames, GlyphTransMode, GlyphAlign);
}

void ThemeItem::SetTile(int32_t Tile, int32_t TileLeft, int32_t TileTop, int32_t TileRight,
                        int32_t TileBottom) {
    this->Tile(Tile);
    this->TileLeft(TileLeft);
    this->TileTop(TileTop);
    this->TileRight(TileRight);
    this->TileBottom(TileBottom);
}

}  // namespace vxgui
