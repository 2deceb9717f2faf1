#include "vxgui/surface/cAlphaDIBSectionClip.h"

#include "vxgui/base/Error.h"
#include "vxgui/frame/modUtilities.h"
#include "vxgui/surface/Stretch.h"

namespace vxgui {

namespace {

int32_t OrCell(int32_t length, int32_t cell) { return length < 1 ? cell : length; }

bool IsInside(int32_t start, int32_t length, int32_t whole) {
    return start >= 0 && !Passes(start, length, whole);
}

Ref<ole::Picture> PictureOf(const Ref<cAlphaDIBSection>& surface) {
    return surface ? surface->Picture() : nullptr;
}

}  // namespace

void cAlphaDIBSectionClip::Division::Balance() {
    if (count != 0) {
        cell = static_cast<int32_t>(int64_t{whole} / count);
    } else if (cell == 0) {
        count = 1;
        cell = whole;
    } else {
        count = static_cast<int32_t>(int64_t{whole} / cell);
    }
}

void cAlphaDIBSectionClip::Division::Count(int32_t value) {
    count = value;
    Balance();
}

void cAlphaDIBSectionClip::Division::Cell(int32_t value) {
    count = 0;
    cell = value;
    Balance();
}

cAlphaDIBSectionClip::cAlphaDIBSectionClip() { SetUpApartment(); }

void cAlphaDIBSectionClip::DIBSECTION(const Ref<cAlphaDIBSection>& value) {
    surface_ = value;
    columns_.whole = surface_ ? surface_->Width() : 0;
    rows_.whole = surface_ ? surface_->Height() : 0;
    bits_ = surface_ ? surface_->DIBSectionBitsPtr() : nullptr;
    if (!surface_) return;
    columns_.Balance();
    rows_.Balance();
}

void cAlphaDIBSectionClip::CellHeight(int32_t value) { rows_.Cell(value); }
void cAlphaDIBSectionClip::CellWidth(int32_t value) { columns_.Cell(value); }
void cAlphaDIBSectionClip::Cols(int32_t value) { columns_.Count(value); }
void cAlphaDIBSectionClip::Rows(int32_t value) { rows_.Count(value); }

bool cAlphaDIBSectionClip::IsCurrent() const {
    return surface_ && surface_->DIBSectionBitsPtr() == bits_ &&
           surface_->Width() == columns_.whole && surface_->Height() == rows_.whole;
}

Ref<cAlphaDIBSection> cAlphaDIBSectionClip::Extract(int32_t x, int32_t y, int32_t w,
                                                    int32_t h) const {
    if (!IsInside(x, w, columns_.whole) || !IsInside(y, h, rows_.whole)) return nullptr;
    auto part = New<cAlphaDIBSection>();
    // The memory that was looked at may be another's once the surface has been created anew.
    if (!part->Create(w, h) || !IsCurrent()) return nullptr;
    part->CopyRows(*surface_, x, rows_.whole - h - y);
    return part;
}

cAlphaDIBSectionClip::Origin cAlphaDIBSectionClip::OriginOf(int32_t index) const {
    if (index < 0 || columns_.count <= 0) return {0, 0};
    return {WrapMul(index % columns_.count, columns_.cell),
            WrapMul(index / columns_.count, rows_.cell)};
}

Ref<cAlphaDIBSection> cAlphaDIBSectionClip::DIBCell(int32_t Index) {
    const Origin origin = OriginOf(Index);
    return Extract(origin.x, origin.y, CellWidth(), CellHeight());
}

Ref<cAlphaDIBSection> cAlphaDIBSectionClip::DIBClip(int32_t X, int32_t Y, int32_t Width,
                                                    int32_t Height) {
    return Extract(X, Y, OrCell(Width, CellWidth()), OrCell(Height, CellHeight()));
}

Ref<ole::Picture> cAlphaDIBSectionClip::Cell(int32_t Index) { return PictureOf(DIBCell(Index)); }

Ref<ole::Picture> cAlphaDIBSectionClip::Clip(int32_t X, int32_t Y, int32_t Width, int32_t Height) {
    return PictureOf(DIBClip(X, Y, Width, Height));
}

void cAlphaDIBSectionClip::DrawCell(int32_t Index, gdi::HDC hDC, int32_t X, int32_t Y,
                                    int32_t Width, int32_t Height, int32_t DrawMethod) {
    if (Index < 0 || Cols() <= 0) return;
    if (!surface_) {
        throw Error(ErrorNumber::ObjectNotSet, "cAlphaDIBSectionClip", "Object not set");
    }
    const Origin origin = OriginOf(Index);
    surface_->PaintByMode(hDC, X, Y, OrCell(Width, CellWidth()), OrCell(Height, CellHeight()),
                          origin.x, origin.y, CellWidth(), CellHeight(), DrawMethod);
}

}  // namespace vxgui
