#pragma once

#include <array>

#include "vxgui/platform/gdiplus/graphics/AxisTaps.h"
#include "vxgui/platform/gdiplus/graphics/ImageSource.h"

namespace vxgui::gdiplus {

/// Makes target rows of an image that is drawn upright. Rows are filtered along x once, when they
/// are first needed, and kept as long as target rows use them.
class Resampler {
public:
    Resampler(const ImageSource& source, AxisTaps x, const EdgeRule& xEdge, AxisTaps y,
              const EdgeRule& yEdge);

    INT Width() const { return x_.count; }
    INT Height() const { return y_.count; }
    /// Premultiplied pixels of target row `i`, counted from the first. Ask for rows in order.
    void Row(INT i, std::span<ARGB> to);

private:
    /// Pixels times 64, each as four channels: room for what filters overshoot.
    using FilteredRow = std::vector<int16_t>;
    struct KeptRow {
        INT index = 0;
        bool filled = false;
        FilteredRow pixels;
    };

    void Load(INT index);
    void Filter(FilteredRow& to) const;
    const FilteredRow& Filtered(INT index);
    void Pick(INT index, std::span<ARGB> to);
    void Mix(INT i, std::span<ARGB> to);

    const ImageSource& source_;
    const AxisTaps x_, y_;
    const EdgeRule& yEdge_;
    INT left_ = 0;              // the image's column that is loaded first
    bool copies_ = false;       // the columns follow each other, one a pixel
    std::vector<INT> columns_;  // of `loaded_`, for each tap along x
    std::vector<ARGB> loaded_;  // a row of the image, and the pixel outside of it
    std::vector<KeptRow> kept_;
    std::vector<INT> sums_;
};

}  // namespace vxgui::gdiplus
