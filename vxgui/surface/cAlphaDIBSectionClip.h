#pragma once

#include <cstdint>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/platform/ole.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

/// A view of a surface as rows by columns of equal cells, counted row by row from 0 at the top
/// left. It owns no pixels, and it looks at the surface's size once: a surface that is created
/// anew must be assigned anew. What a width or height isn't a multiple of belongs to no cell.
class VXGUI_API cAlphaDIBSectionClip : public Object {
public:
    cAlphaDIBSectionClip();

    Ref<cAlphaDIBSection> DIBSECTION() const { return surface_; }
    void DIBSECTION(const Ref<cAlphaDIBSection>& value);
    void LetDIBSECTION(const Ref<cAlphaDIBSection>& value) { DIBSECTION(value); }

    // The number of cells decides their size when it isn't 0; setting a size decides the number.
    int32_t CellHeight() const { return rows_.cell; }
    void CellHeight(int32_t value);
    int32_t CellWidth() const { return columns_.cell; }
    void CellWidth(int32_t value);
    int32_t Cols() const { return columns_.count; }
    void Cols(int32_t value);
    int32_t Rows() const { return rows_.count; }
    void Rows(int32_t value);

    // Copies, with the properties of a new surface; none for what isn't wholly inside. A negative
    // index is the first cell; a size below 1 is a cell's.
    virtual Ref<cAlphaDIBSection> DIBCell(int32_t Index);
    virtual Ref<cAlphaDIBSection> DIBClip(int32_t X = 0, int32_t Y = 0, int32_t Width = 0,
                                          int32_t Height = 0);
    virtual Ref<ole::Picture> Cell(int32_t Index);
    virtual Ref<ole::Picture> Clip(int32_t X = 0, int32_t Y = 0, int32_t Width = 0,
                                   int32_t Height = 0);

    /// Draws a cell, stretched to a size other than its own. `DrawMethod`: 0 copies, 0x100 leaves
    /// the colour key out, 0x200 plus an alpha blends. A negative index draws nothing; raises
    /// without a surface.
    virtual void DrawCell(int32_t Index, gdi::HDC hDC, int32_t X = 0, int32_t Y = 0,
                          int32_t Width = 0, int32_t Height = 0, int32_t DrawMethod = 0);

protected:
    ~cAlphaDIBSectionClip() override = default;

private:
    /// The cells along one direction.
    struct Division {
        int32_t whole = 0;
        int32_t count = 0;
        int32_t cell = 0;

        void Balance();
        void Count(int32_t value);
        void Cell(int32_t value);
    };
    struct Origin {
        int32_t x, y;
    };

    Origin OriginOf(int32_t index) const;
    Ref<cAlphaDIBSection> Extract(int32_t x, int32_t y, int32_t w, int32_t h) const;
    bool IsCurrent() const;

    Ref<cAlphaDIBSection> surface_;
    const void* bits_ = nullptr;
    Division columns_, rows_;
};

}  // namespace vxgui
