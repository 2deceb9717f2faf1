#pragma once

#include <array>

#include "fuzz/drawing/ByteReader.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui::fuzz {

/// A small canvas, a few pictures and a skin element, and calls among them that bytes choose. All
/// of them are of integers, so that the same bytes give the same pixels in every build.
class ExactCalls {
public:
    ExactCalls();

    /// Makes the call that the next bytes say.
    void Next(ByteReader& bytes);
    /// The CRC-32 of the canvas and of all pictures.
    uint32_t Checksum() const;

private:
    struct Box {
        int32_t left, top, width, height;
    };
    using Call = void (ExactCalls::*)(ByteReader& bytes);
    static const Call kCalls[];

    static Box BoxOf(ByteReader& bytes);
    cAlphaDIBSection& Picture(ByteReader& bytes);

    void Blit(ByteReader& bytes);
    void KeyBlit(ByteReader& bytes);
    void AlphaBlit(ByteReader& bytes);
    void Blend(ByteReader& bytes);
    /// Calls `paint` with a rectangle and a brush of a colour.
    template <class Paint>
    void WithBrush(ByteReader& bytes, Paint paint);
    void Fill(ByteReader& bytes);
    void Frame(ByteReader& bytes);
    void Edge(ByteReader& bytes);
    void Invert(ByteReader& bytes);
    void Clip(ByteReader& bytes);
    void NineGrid(ByteReader& bytes);
    void KeyToAlpha(ByteReader& bytes);
    void Premultiply(ByteReader& bytes);
    void Reload(ByteReader& bytes);
    void Blur(ByteReader& bytes);
    void PaintItem(ByteReader& bytes);
    void ChangeItem(ByteReader& bytes);

    const Ref<cAlphaDIBSection> canvas_ = New<cAlphaDIBSection>();
    std::array<Ref<cAlphaDIBSection>, 4> pictures_;
    const Ref<ThemeItem> item_ = New<ThemeItem>();
};

}  // namespace vxgui::fuzz
