#include "vxgui/theme/ThemeItem.h"

#include "vxgui/frame/modUtilities.h"

namespace vxgui {

ThemeItem::ThemeItem() { SetUpApartment(); }
ThemeItem::~ThemeItem() = default;

void ThemeItem::Bit(uint32_t mask, int32_t value) {
    imageFlags_ = value != 0 ? imageFlags_ | mask : imageFlags_ & ~mask;
}

void ThemeItem::StoreMode(int32_t value, uint32_t transBit, uint32_t perPixelBit) {
    Bit(transBit, value == Trans);
    Bit(perPixelBit, value == PerPixel);
}

int32_t ThemeItem::TransMode() const {
    return imageFlags_ & kPerPixel ? PerPixel : imageFlags_ & kTrans ? Trans : Normal;
}

void ThemeItem::TransMode(int32_t value) {
    StoreMode(value, kTrans, kPerPixel);
    if (value == PerPixel && image_) image_->PreMultiplyAlpha();
}

int32_t ThemeItem::GlyphTransMode() const {
    return imageFlags_ & kGlyphPerPixel ? PerPixel : imageFlags_ & kGlyphTrans ? Trans : Normal;
}

void ThemeItem::GlyphTransMode(int32_t value) {
    StoreMode(value, kGlyphTrans, kGlyphPerPixel);
    if (value == PerPixel && glyph_) glyph_->PreMultiplyAlpha();
}

void ThemeItem::FrameCount(int32_t value) {
    if (value > 0) frameCount_ = value;
}

void ThemeItem::FrameOrder(int32_t value) {
    if (value >= -1 && value <= 1) frames_.order = value;
}

int32_t ThemeItem::Tile() const { return static_cast<int32_t>(imageFlags_ & kTileMask); }

void ThemeItem::Tile(int32_t value) {
    // Unmasked on purpose: a value above 15 also sets higher bits.
    imageFlags_ = (imageFlags_ & ~kTileMask) | static_cast<uint32_t>(value);
}

int32_t ThemeItem::GlyphFrames() {
    if (glyphFrameCount_ < 1) glyphFrameCount_ = frameCount_;
    return glyphFrameCount_;
}

int32_t ThemeItem::ImageWidth() const {
    if (!image_) return 0;
    return frameCount_ < 2 || FrameVert() ? image_->Width() : image_->Width() / frameCount_;
}

int32_t ThemeItem::ImageHeight() const {
    if (!image_) return 0;
    return frameCount_ < 2 || !FrameVert() ? image_->Height() : image_->Height() / frameCount_;
}

void ThemeItem::SetImageMargin(int32_t Left, int32_t Top, int32_t Right, int32_t Bottom) {
    imageMargin_ = {Left, Top, Right, Bottom};
}

void ThemeItem::SetGlyphMargin(int32_t Left, int32_t Top, int32_t Right, int32_t Bottom) {
    glyphMargin_ = {Left, Top, Right, Bottom};
}

void ThemeItem::SetIconMargin(int32_t Left, int32_t Top, int32_t Right, int32_t Bottom) {
    iconMargin_ = {Left, Top, Right, Bottom};
}

void ThemeItem::SetContentMargin(int32_t Left, int32_t Top, int32_t Right, int32_t Bottom) {
    contentMargin_ = {Left, Top, Right, Bottom};
}

namespace {

void Take(const Margin& margin, int32_t& left, int32_t& top, int32_t& right, int32_t& bottom) {
    left = margin.left;
    top = margin.top;
    right = margin.right;
    bottom = margin.bottom;
}

}  // namespace

void ThemeItem::GetGlyphMargin(int32_t& Left, int32_t& Top, int32_t& Right, int32_t& Bottom) const {
    Take(glyphMargin_, Left, Top, Right, Bottom);
}

void ThemeItem::GetIconMargin(int32_t& Left, int32_t& Top, int32_t& Right, int32_t& Bottom) const {
    Take(iconMargin_, Left, Top, Right, Bottom);
}

void ThemeItem::GetContentMargin(int32_t& Left, int32_t& Top, int32_t& Right,
                                 int32_t& Bottom) const {
    Take(contentMargin_, Left, Top, Right, Bottom);
}

}  // namespace vxgui
