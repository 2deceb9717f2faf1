#pragma once

#include <cstddef>
#include <cstdint>

#include "vxgui/base/Export.h"

/// What input may cost: the bounds that every reader and every drawing call keeps to before it
/// takes memory or time. docs/limits.md lists them with what happens beyond each.
namespace vxgui {

/// Bounds on a picture that is to be decoded. A header that asks for more is refused: a file of
/// twenty bytes can name a picture of gigabytes.
struct PictureLimits {
    int32_t side = 32767;              ///< pixels of either side, the coordinate range of blits
    int64_t area = 64 << 20;           ///< pixels
    size_t bytes = size_t{256} << 20;  ///< of decoded pixels, and of a decoder's working memory

    /// Whether a picture of this size may be decoded to 32-bit pixels. An empty one may not.
    bool Allow(int64_t width, int64_t height) const {
        return width > 0 && height > 0 && width <= side && height <= side &&
               width * height <= area && static_cast<uint64_t>(width * height) * 4 <= bytes;
    }
};

/// Bounds on what a define file may be: far more than a skin that people write.
struct DefineLimits {
    size_t bytes = 4u << 20;  ///< of a file; of a text, its 16-bit units
    size_t keys = 100000;     ///< lines with a key or a section header
};

/// All bounds of one apartment. Each may be set at any time and counts from the next call on.
struct Limits {
    PictureLimits picture;
    DefineLimits define;

    /// Each scan of a JPEG walks the whole picture; progressive files have about ten.
    int32_t jpegScans = 200;
    /// Of any file that is read whole: four pictures of the largest size.
    size_t fileBytes = size_t{1} << 30;
    /// What a compressed block may say that it holds, looked at before room is made for it.
    size_t decompressedBytes = size_t{1} << 30;
    /// Of the contents of a property bag: an item with two pictures of the largest size.
    size_t bagBytes = size_t{640} << 20;
    /// An entry of two bytes becomes an object of two hundred.
    size_t bagEntries = 1000000;
    /// What a stream in memory may grow to; a careless seek must not be allocated.
    uint64_t streamBytes = uint64_t{1} << 31;

    /// Of a module that is kept for its resources; style modules are a few megabytes.
    size_t moduleBytes = size_t{256} << 20;
    /// Entries of a directory, and resources in a list: directories of a hostile file may share
    /// their entries without end.
    uint32_t moduleResources = 16384;
    /// Fonts, styles or items of a theme set: more than a define file has keys for.
    int32_t themeSections = 100000;
    /// Of a compiled skin's file; more would be refused for its contents anyway.
    size_t skinFileBytes = size_t{128} << 20;
    /// Of a compiled skin's contents. A picture is there twice while it is read, and a decoder
    /// may take 256 MiB.
    size_t skinBytes = size_t{96} << 20;
    /// Of a compiled skin: far more pictures than a skin has.
    size_t skinSections = 10000;
    /// Of items, fonts or styles in a compiled skin, as many as a theme set may have: an object
    /// takes more memory than its record.
    size_t skinRecords = 100000;

    /// Pixel memory of one bitmap: 16,384 x 16,384 pixels of 32 bits. An absurd size fails here
    /// and not in the machine's memory.
    size_t bitmapBytes = size_t{1} << 30;
    /// Pixel memory of one image of the object layer, whose published interface counts in 31 bits.
    size_t imageBytes = 0x7FFFFFFF;
    /// Rows that the edges of a path cross when it becomes a region: 10,000 rows of 400 edges.
    int64_t regionSteps = 4000000;
    /// Rectangles of a region, as many as the bands of a combination could give: combining two
    /// regions can multiply theirs.
    size_t regionRectangles = 4000000;
    /// 16-bit units of a text that is drawn or measured; each takes some hundred bytes meanwhile.
    size_t textUnits = size_t{16} << 20;
};

/// The bounds of the calling apartment, for its host to set.
VXPLATFORM_API Limits& ApartmentLimits();

}  // namespace vxgui
