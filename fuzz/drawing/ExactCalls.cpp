#include "fuzz/drawing/ExactCalls.h"

#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi.h"

namespace vxgui::fuzz {
namespace {

constexpr int32_t kWidth = 64, kHeight = 48;
constexpr struct { int32_t width, height; } kPictures[] = {{16, 12}, {33, 7}, {24, 24}, {1, 5}};

std::span<uint8_t> PixelBytes(const cAlphaDIBSection& surface) {
    return {static_cast<uint8_t*>(surface.DIBSectionBitsPtr()),
            static_cast<size_t>(surface.Height() * surface.BytesPerScanLine())};
}

// A picture of which no two bytes in a row are alike.
void Paint(const cAlphaDIBSection& surface, uint32_t seed) {
    for (uint8_t& byte : PixelBytes(surface)) {
        seed = seed * 1664525 + 1013904223;
        byte = static_cast<uint8_t>(seed >> 24);
    }
}

}  // namespace

const ExactCalls::Call ExactCalls::kCalls[] = {
    &ExactCalls::Blit,   &ExactCalls::KeyBlit,  &ExactCalls::AlphaBlit,  &ExactCalls::Blend,
    &ExactCalls::Fill,   &ExactCalls::Frame,    &ExactCalls::Edge,       &ExactCalls::Invert,
    &ExactCalls::Clip,   &ExactCalls::NineGrid, &ExactCalls::KeyToAlpha, &ExactCalls::Premultiply,
    &ExactCalls::Reload, &ExactCalls::Blur,     &ExactCalls::PaintItem,  &ExactCalls::ChangeItem,
};

ExactCalls::ExactCalls() {
    canvas_->Create(kWidth, kHeight);
    Paint(*canvas_, 1);
    for (size_t i = 0; i < pictures_.size(); ++i) {
        pictures_[i] = New<cAlphaDIBSection>();
        pictures_[i]->Create(kPictures[i].width, kPictures[i].height);
        Paint(*pictures_[i], static_cast<uint32_t>(i + 2));
    }
    item_->Image(pictures_[0]);
    item_->Glyph(pictures_[2]);
}

void ExactCalls::Next(ByteReader& bytes) {
    (this->*kCalls[bytes.Take<uint8_t>() % std::size(kCalls)])(bytes);
}

uint32_t ExactCalls::Checksum() const {
    ByteArray all;
    const auto add = [&](const cAlphaDIBSection& surface) {
        const std::span<uint8_t> bytes = PixelBytes(surface);
        all.insert(all.end(), bytes.begin(), bytes.end());
    };
    add(*canvas_);
    for (const auto& picture : pictures_) add(*picture);
    return core7::Checksum(all.data(), all.size());
}

// Mostly within a picture's reach, at times outside, backwards or empty.
ExactCalls::Box ExactCalls::BoxOf(ByteReader& bytes) {
    const auto side = [&] { return bytes.Take<uint8_t>() % 80 - 8; };
    return {side(), side(), side(), side()};
}

cAlphaDIBSection& ExactCalls::Picture(ByteReader& bytes) {
    return *pictures_[bytes.Take<uint8_t>() % pictures_.size()];
}

void ExactCalls::Blit(ByteReader& bytes) {
    const Box to = BoxOf(bytes), from = BoxOf(bytes);
    Picture(bytes).PaintPicture(canvas_->hDC(), to.left, to.top, to.width, to.height, from.left,
                                from.top, from.width, from.height);
}

void ExactCalls::KeyBlit(ByteReader& bytes) {
    const Box to = BoxOf(bytes), from = BoxOf(bytes);
    Picture(bytes).TransPaintPicture(canvas_->hDC(), to.left, to.top, to.width, to.height,
                                     from.left, from.top, from.width, from.height,
                                     bytes.Take<int32_t>() & 0xFFFFFF);
}

void ExactCalls::AlphaBlit(ByteReader& bytes) {
    const Box to = BoxOf(bytes), from = BoxOf(bytes);
    const auto alpha = bytes.Take<uint8_t>();
    Picture(bytes).AlphaPaintPicture(canvas_->hDC(), to.left, to.top, to.width, to.height,
                                     from.left, from.top, from.width, from.height, alpha,
                                     bytes.Take<uint8_t>() % 2 != 0);
}

// The platform's own blend.
void ExactCalls::Blend(ByteReader& bytes) {
    const Box to = BoxOf(bytes), from = BoxOf(bytes);
    const uint32_t alpha = bytes.Take<uint8_t>(), hasChannel = bytes.Take<uint8_t>() % 2;
    gdi::AlphaBlend(canvas_->hDC(), to.left, to.top, to.width, to.height, Picture(bytes).hDC(),
                    from.left, from.top, from.width, from.height, alpha << 16 | hasChannel << 24);
}

template <class Paint>
void ExactCalls::WithBrush(ByteReader& bytes, Paint paint) {
    const Box box = BoxOf(bytes);
    const gdi::RECT rect{box.left, box.top, box.left + box.width, box.top + box.height};
    const gdi::HBRUSH brush = gdi::CreateSolidBrush(bytes.Take<uint32_t>() & 0xFFFFFF);
    paint(canvas_->hDC(), &rect, brush);
    gdi::DeleteObject(brush);
}

void ExactCalls::Fill(ByteReader& bytes) { WithBrush(bytes, gdi::FillRect); }

void ExactCalls::Frame(ByteReader& bytes) { WithBrush(bytes, gdi::FrameRect); }

void ExactCalls::Edge(ByteReader& bytes) {
    const Box box = BoxOf(bytes);
    gdi::RECT rect{box.left, box.top, box.left + box.width, box.top + box.height};
    const auto edge = bytes.Take<uint16_t>();
    gdi::DrawEdge(canvas_->hDC(), &rect, edge & 15, edge >> 4);
}

void ExactCalls::Invert(ByteReader& bytes) {
    const Box box = BoxOf(bytes);
    gdi::PatBlt(canvas_->hDC(), box.left, box.top, box.width, box.height, 0x00550009);
}

// Every other time the clip is taken away, so that it doesn't shrink to nothing.
void ExactCalls::Clip(ByteReader& bytes) {
    const Box box = BoxOf(bytes);
    gdi::SelectClipRgn(canvas_->hDC(), nullptr);
    if (bytes.Take<uint8_t>() % 2 == 0) return;
    gdi::IntersectClipRect(canvas_->hDC(), box.left, box.top, box.left + box.width,
                           box.top + box.height);
}

void ExactCalls::NineGrid(ByteReader& bytes) {
    const auto margin = [&] { return bytes.Take<uint8_t>() % 10 - 1; };
    const Box to = BoxOf(bytes), from = BoxOf(bytes);
    NineGridRecord grid{};
    grid.dstLeft = to.left, grid.dstTop = to.top;
    grid.dstWidth = to.width, grid.dstHeight = to.height;
    grid.srcLeft = from.left, grid.srcTop = from.top;
    grid.srcWidth = from.width, grid.srcHeight = from.height;
    grid.Mode = bytes.Take<int32_t>();
    grid.marginLeft = margin(), grid.marginTop = margin();
    grid.marginRight = margin(), grid.marginBottom = margin();
    Picture(bytes).PaintNineGrid(grid);
}

void ExactCalls::KeyToAlpha(ByteReader& bytes) {
    cAlphaDIBSection& picture = Picture(bytes);
    if (bytes.Take<uint8_t>() % 2)
        picture.SetTransColor(bytes.Take<int32_t>());
    else
        picture.SetTransColor2(picture.GetPixel(0, 0));
}

void ExactCalls::Premultiply(ByteReader& bytes) { Picture(bytes).PreMultiplyAlpha(); }

// Fresh pixels, and the form before they were premultiplied.
void ExactCalls::Reload(ByteReader& bytes) {
    cAlphaDIBSection& picture = Picture(bytes);
    picture.Create(picture.Width(), picture.Height());
    Paint(picture, bytes.Take<uint32_t>());
}

// Here and below each value is taken in a statement or in braces: compilers are free in the order
// of a call's arguments, and the calls must be the same with all of them.
void ExactCalls::Blur(ByteReader& bytes) {
    const auto reach = [&] { return bytes.Take<uint8_t>() % 5; };
    const int32_t x = reach(), y = reach(), useColour = bytes.Take<uint8_t>() % 2;
    Picture(bytes).blur(x, y, useColour, bytes.Take<int32_t>() & 0xFFFFFF);
}

void ExactCalls::PaintItem(ByteReader& bytes) {
    const Box to = BoxOf(bytes);
    const int32_t frame = bytes.Take<uint8_t>() % 6 - 1, glyph = bytes.Take<uint8_t>() % 6 - 1;
    item_->DrawBackground(canvas_->hDC(), to.left, to.top, to.width, to.height, frame, glyph);
}

void ExactCalls::ChangeItem(ByteReader& bytes) {
    const auto small = [&] { return bytes.Take<uint8_t>() % 8; };
    const auto sides = [&] { return Box{small(), small(), small(), small()}; };
    item_->FrameCount(small());
    item_->FrameVert(small() % 2);
    item_->TransMode(small() % 4);
    item_->ImageAlpha(bytes.Take<uint8_t>());
    const int32_t tile = small();
    const Box edges = sides(), image = sides(), glyph = sides();
    item_->SetTile(tile, edges.left % 2, edges.top % 2, edges.width % 2, edges.height % 2);
    item_->SetImageMargin(image.left, image.top, image.width, image.height);
    item_->SetGlyphMargin(glyph.left, glyph.top, glyph.width, glyph.height);
    item_->GlyphAlign(bytes.Take<uint8_t>() % 12);
    item_->State(small());
}

}  // namespace vxgui::fuzz
