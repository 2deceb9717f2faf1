#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

/// Types of values, with their published numbers.
enum PropertyType : uint16_t {
    kPropertyByte = 1,
    kPropertyAscii = 2,
    kPropertyShort = 3,
    kPropertyLong = 4,
    kPropertyRational = 5,  ///< two longs
    kPropertyUndefined = 7,
    kPropertySignedLong = 9,
    kPropertySignedRational = 10,
};

/// One thing that a file says of its picture. Numbers are stored lowest byte first, whatever the
/// order in the file; texts end with a zero.
struct ImageProperty {
    uint32_t id = 0;  ///< a TIFF or EXIF tag, or one of the published numbers below
    uint16_t type = 0;
    std::vector<uint8_t> value;
};
using ImageProperties = std::vector<ImageProperty>;

constexpr uint32_t kImageDescription = 0x010E, kEquipModel = 0x0110, kXResolution = 0x011A,
                   kYResolution = 0x011B, kResolutionUnit = 0x0128, kSoftwareUsed = 0x0131,
                   kDateTime = 0x0132, kArtist = 0x013B, kWhitePoint = 0x013E,
                   kPrimaryChromaticities = 0x013F, kGamma = 0x0301, kRenderingIntent = 0x0303,
                   kImageTitle = 0x0320, kThumbnailData = 0x501B, kLuminanceTable = 0x5090,
                   kChrominanceTable = 0x5091, kFrameDelay = 0x5100, kLoopCount = 0x5101,
                   kGlobalPalette = 0x5102, kIndexBackground = 0x5103, kIndexTransparent = 0x5104,
                   kPixelUnit = 0x5110, kPixelPerUnitX = 0x5111, kPixelPerUnitY = 0x5112,
                   kPaletteHistogram = 0x5113, kCopyright = 0x8298, kExifIfd = 0x8769,
                   kIccProfile = 0x8773, kGpsIfd = 0x8825, kUserComment = 0x9286;

ImageProperty TextProperty(uint32_t id, Bytes text);
ImageProperty LongsProperty(uint32_t id, uint16_t type, std::initializer_list<uint32_t> values);
ImageProperty ShortsProperty(uint32_t id, const std::vector<uint16_t>& values);
ImageProperty BytesProperty(uint32_t id, uint16_t type, Bytes bytes);

/// What the file says of one of its frames, as far as it is undamaged.
ImageProperties ReadProperties(ImageFormat format, Bytes bytes, int frame);

}  // namespace vxgui::codecs
