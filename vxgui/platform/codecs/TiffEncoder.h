#pragma once

#include <memory>

#include "vxgui/platform/codecs/ImageEncoder.h"

namespace vxgui::codecs {

enum class TiffCompression { None, Lzw, Rle, Ccitt3, Ccitt4 };

/// Writes pages to a file in memory. The three last compressions are for pages of 1 bit.
class TiffWriter {
public:
    TiffWriter();
    ~TiffWriter();

    /// False on failure, after which the file is of no use.
    bool Add(const PictureToWrite& page, TiffCompression compression);
    /// The whole file with the pages so far.
    const Written& Bytes() const;

private:
    struct File;
    std::unique_ptr<File> file_;
};

}  // namespace vxgui::codecs
