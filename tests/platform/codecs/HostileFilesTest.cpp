#include <gtest/gtest.h>

#include "tests/support/Golden.h"
#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {
namespace {

using ByteVector = std::vector<uint8_t>;

// Where the segment with this marker begins.
size_t FindMarker(const ByteVector& jpeg, uint8_t marker) {
    for (size_t at = 2; at + 4 < jpeg.size();) {
        if (jpeg[at + 1] == marker) return at;
        at += 2u + jpeg[at + 2] * 256u + jpeg[at + 3];
    }
    return jpeg.size();
}

// The picture with its first scan, and the tables of that, given `times` times.
ByteVector WithRepeatedScan(const ByteVector& jpeg, int times) {
    const size_t tables = FindMarker(jpeg, 0xC4);
    size_t end = FindMarker(jpeg, 0xDA) + 2;
    while (jpeg[end] != 0xFF || jpeg[end + 1] == 0) ++end;
    const auto at = [&](size_t place) { return jpeg.begin() + static_cast<ptrdiff_t>(place); };
    ByteVector repeated(at(0), at(tables));
    for (int i = 0; i < times; ++i) repeated.insert(repeated.end(), at(tables), at(end));
    repeated.insert(repeated.end(), at(end), jpeg.end());
    return repeated;
}

TEST(JpegDecoder, RefusesAFileOfEndlessScans) {
    const ByteVector jpeg = test::ReadTestFile("images/jpeg-progressive.jpg");
    EXPECT_TRUE(DecodeImage(WithRepeatedScan(jpeg, 100)));
    EXPECT_FALSE(DecodeImage(WithRepeatedScan(jpeg, 1000)));
}

TEST(JpegDecoder, KeepsItsWorkingMemoryWithinTheLimits) {
    const ByteVector jpeg = test::ReadTestFile("images/large-progressive.jpg");
    DecodeLimits& limits = ApartmentDecodeLimits();
    const DecodeLimits kept = limits;
    EXPECT_TRUE(DecodeImage(jpeg));
    limits.bytes = 256 * 256 * 4;  // enough for the pixels, too little for the coefficients
    EXPECT_TRUE(OpenImage(jpeg));
    EXPECT_FALSE(DecodeImage(jpeg));
    limits = kept;
}

}  // namespace
}  // namespace vxgui::codecs
