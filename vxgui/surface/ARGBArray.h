#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Error.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// Pixel memory seen as rows by columns, both from 0, the first index being the row in memory.
/// It is a view: it holds no pixels and must not be used once their surface has let them go.
class ARGBArray {
public:
    ARGBArray() = default;
    ARGBArray(ARGB* pixels, int32_t rows, int32_t columns)
        : pixels_(pixels), rows_(rows), columns_(columns) {}

    int32_t Rows() const { return rows_; }
    int32_t Columns() const { return columns_; }

    /// Raises for an index outside the array.
    ARGB& operator()(int32_t row, int32_t column) const {
        if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
            throw Error(ErrorNumber::Subscript, "ARGBArray", "Subscript out of range");
        }
        return pixels_[Element(row, column)];
    }

    /// The pixels of a row from `first` to `last`; none when `last` is before `first` or one of
    /// the three is outside the array.
    std::span<ARGB> Run(int32_t row, int32_t first, int32_t last) const {
        if (row < 0 || row >= rows_ || first < 0 || last < first || last >= columns_) return {};
        return {pixels_ + Element(row, first), static_cast<size_t>(last - first + 1)};
    }

private:
    size_t Element(int32_t row, int32_t column) const {
        return static_cast<size_t>(row) * static_cast<size_t>(columns_) +
               static_cast<size_t>(column);
    }

    ARGB* pixels_ = nullptr;
    int32_t rows_ = 0;
    int32_t columns_ = 0;
};

}  // namespace vxgui
