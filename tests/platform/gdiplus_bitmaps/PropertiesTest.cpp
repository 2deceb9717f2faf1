#include <cstring>
#include <map>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/support/Golden.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/base/LittleEndian.h"

namespace vxgui::gdiplus {
namespace {

using Values = std::map<PROPID, std::pair<WORD, std::vector<uint8_t>>>;

class Properties : public BitmapTest {
protected:
    GpImage* FromBytes(ByteArray bytes) {
        GpImage* image = nullptr;
        EXPECT_EQ(
            GdipLoadImageFromStream(ole::CreateStreamOnHGlobal(std::move(bytes)).get(), &image),
            Ok);
        Keep(reinterpret_cast<GpBitmap*>(image));
        return image;
    }
    static Values All(GpImage* image) {
        UINT size = 0, count = 0;
        EXPECT_EQ(GdipGetPropertySize(image, &size, &count), Ok);
        std::vector<uint64_t> buffer(size / 8 + 1);
        auto* items = reinterpret_cast<PropertyItem*>(buffer.data());
        EXPECT_EQ(GdipGetAllPropertyItems(image, size, count, items), Ok);
        Values values;
        for (UINT i = 0; i < count; ++i) {
            const auto* bytes = static_cast<const uint8_t*>(items[i].value);
            values[items[i].id] = {items[i].type, {bytes, bytes + items[i].length}};
        }
        return values;
    }
    static std::vector<uint8_t> Longs(std::initializer_list<uint32_t> values) {
        std::vector<uint8_t> bytes;
        for (const uint32_t value : values) {
            bytes.resize(bytes.size() + 4);
            StoreLittle(&bytes[bytes.size() - 4], value);
        }
        return bytes;
    }
    static std::vector<uint8_t> Text(const std::string& text) {
        std::vector<uint8_t> bytes(text.begin(), text.end());
        bytes.push_back(0);
        return bytes;
    }
};

// A camera's segment: highest byte first, or lowest. An orientation (short 6), a maker ("Me"), an
// exposure (rational 1/250) in the second directory, an orientation of none behind.
ByteArray Exif(bool big) {
    ByteArray tiff;
    const auto number = [&](uint32_t value, size_t size) {
        for (size_t i = 0; i < size; ++i) {
            tiff.push_back(static_cast<uint8_t>(value >> 8 * (big ? size - 1 - i : i)));
        }
    };
    const auto entry = [&](uint32_t tag, uint32_t type, uint32_t count) {
        number(tag, 2);
        number(type, 2);
        number(count, 4);
    };
    tiff = big ? ByteArray{'M', 'M'} : ByteArray{'I', 'I'};
    number(42, 2);
    number(8, 4);
    number(3, 2);
    entry(0x010F, 2, 3);
    tiff.insert(tiff.end(), {'M', 'e', 0, 0});
    entry(0x0112, 3, 1);
    number(6, 2);
    number(0, 2);
    entry(0x8769, 4, 1);
    number(50, 4);
    number(0, 4);
    number(1, 2);  // at 50
    entry(0x829A, 5, 1);
    number(68, 4);
    number(0, 4);
    number(1, 4);  // at 68
    number(250, 4);
    return tiff;
}

ByteArray JpegWith(const ByteArray& exif) {
    ByteArray jpeg = test::ReadTestFile("images/jpeg-444.jpg");
    ByteArray segment = {0xFF, 0xE1, 0, static_cast<uint8_t>(exif.size() + 8), 'E', 'x', 'i',
                         'f',  0,    0};
    segment.insert(segment.end(), exif.begin(), exif.end());
    jpeg.insert(jpeg.begin() + 2, segment.begin(), segment.end());
    return jpeg;
}

TEST_F(Properties, OfACameraAreReadInEitherByteOrder) {
    for (const bool big : {false, true}) {
        Values values = All(FromBytes(JpegWith(Exif(big))));
        EXPECT_EQ(values[0x010F], std::pair(WORD{2}, Text("Me")));
        EXPECT_EQ(values[0x0112], std::pair(WORD{3}, std::vector<uint8_t>{6, 0}));
        EXPECT_EQ(values[0x829A], std::pair(WORD{5}, Longs({1, 250})));
        EXPECT_EQ(values.count(0x8769), 0u);
        EXPECT_EQ(values[0x5090].second.size(), 128u) << "the quantization table";
    }
}

TEST_F(Properties, OfADamagedCameraAreLeftOut) {
    const ByteArray exif = Exif(true);
    for (size_t size = 0; size < exif.size(); ++size) {
        const Values values = All(FromBytes(JpegWith({exif.begin(), exif.begin() + size})));
        EXPECT_LE(values.count(0x829A), 1u);
    }
    ByteArray lying = exif;
    lying[14] = 0xFF;  // a text of four thousand million letters
    EXPECT_EQ(All(FromBytes(JpegWith(lying))).count(0x010F), 0u);
}

void AppendChunk(ByteArray* png, const char* name, const ByteArray& data) {
    ByteArray chunk(8);
    for (int i = 0; i < 4; ++i) {
        chunk[static_cast<size_t>(i)] = static_cast<uint8_t>(data.size() >> (24 - 8 * i));
        chunk[static_cast<size_t>(4 + i)] = static_cast<uint8_t>(name[i]);
    }
    chunk.insert(chunk.end(), data.begin(), data.end());
    uint32_t crc = 0xFFFFFFFF;
    for (size_t i = 4; i < chunk.size(); ++i) {
        crc ^= chunk[i];
        for (int bit = 0; bit < 8; ++bit) crc = crc & 1 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    for (int shift = 24; shift >= 0; shift -= 8) {
        chunk.push_back(static_cast<uint8_t>(~crc >> shift));
    }
    png->insert(png->begin() + 33, chunk.begin(), chunk.end());
}

TEST_F(Properties, OfAPngAreItsTextsAndItsGamma) {
    ByteArray png = test::ReadTestFile("images/png-rgb-8.png");
    const std::string title = std::string("Title") + '\0' + "Morning";
    AppendChunk(&png, "tEXt", {title.begin(), title.end()});
    AppendChunk(&png, "tIME", {7, 0xE8, 2, 29, 12, 34, 56});
    Values values = All(FromBytes(std::move(png)));
    EXPECT_EQ(values[0x0320], std::pair(WORD{2}, Text("Morning")));
    EXPECT_EQ(values[0x0132], std::pair(WORD{2}, Text("2024:02:29 12:34:56")));

    png = test::ReadTestFile("images/png-palette-8.png");
    if (!All(FromBytes(png)).count(0x0301)) AppendChunk(&png, "gAMA", {0, 0, 0xB1, 0x8F});
    values = All(FromBytes(std::move(png)));
    EXPECT_EQ(values[0x0301].second.size(), 8u);
    EXPECT_EQ(LoadLittle<uint32_t>(values[0x0301].second.data()), 100000u);
}

TEST_F(Properties, OfATiffAreItsTags) {
    Values little = All(FromBytes(test::ReadTestFile("images/tiff-rgb.tif")));
    Values big = All(FromBytes(test::ReadTestFile("images/tiff-rgb-msb.tif")));
    for (Values* each : {&little, &big}) {
        EXPECT_EQ((*each)[0x0100].second[0], 13) << "the width, lowest byte first";
        EXPECT_EQ((*each)[0x0102].second, (std::vector<uint8_t>{8, 0, 8, 0, 8, 0}));
    }
}

TEST_F(Properties, AreSetAndRemoved) {
    GpImage* image = AsImage(Make(1, 1, PixelFormat24bppRGB));
    UINT count = 77;
    EXPECT_EQ(GdipGetPropertyCount(image, &count), Ok);
    EXPECT_EQ(count, 0u);
    char text[] = "Ann";
    PropertyItem item{0x013B, sizeof text, 2, text};
    ASSERT_EQ(GdipSetPropertyItem(image, &item), Ok);
    uint16_t number = 7;
    const PropertyItem other{0x0112, 2, 3, &number};
    ASSERT_EQ(GdipSetPropertyItem(image, &other), Ok);
    text[0] = 'E';
    ASSERT_EQ(GdipSetPropertyItem(image, &item), Ok);
    EXPECT_EQ(GdipGetPropertyCount(image, &count), Ok);
    ASSERT_EQ(count, 2u);
    PROPID ids[2] = {};
    ASSERT_EQ(GdipGetPropertyIdList(image, 2, ids), Ok);
    EXPECT_EQ(ids[0], 0x013Bu);
    EXPECT_EQ(ids[1], 0x0112u);
    EXPECT_EQ(All(image)[0x013B].second, Text("Enn"));
    ASSERT_EQ(GdipRemovePropertyItem(image, 0x013B), Ok);
    EXPECT_EQ(GdipRemovePropertyItem(image, 0x013B), PropertyNotFound);
    EXPECT_EQ(All(image).size(), 1u);
}

TEST_F(Properties, SizesMustBeRight) {
    GpImage* image = AsImage(Make(1, 1, PixelFormat24bppRGB));
    uint16_t number = 7;
    const PropertyItem item{0x0112, 2, 3, &number};
    GdipSetPropertyItem(image, &item);
    UINT size = 0;
    ASSERT_EQ(GdipGetPropertyItemSize(image, 0x0112, &size), Ok);
    EXPECT_EQ(size, sizeof(PropertyItem) + 2);
    uint64_t buffer[16] = {};
    auto* items = reinterpret_cast<PropertyItem*>(buffer);
    EXPECT_EQ(GdipGetPropertyItem(image, 0x0112, size - 1, items), InvalidParameter);
    EXPECT_EQ(GdipGetPropertyItem(image, 0x0113, size, items), PropertyNotFound);
    EXPECT_EQ(GdipGetPropertyItemSize(image, 0x0113, &size), PropertyNotFound);
    EXPECT_EQ(GdipGetAllPropertyItems(image, size, 2, items), InvalidParameter);
    PROPID ids[2];
    EXPECT_EQ(GdipGetPropertyIdList(image, 2, ids), InvalidParameter);
    EXPECT_EQ(GdipGetPropertyIdList(image, 1, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPropertyCount(image, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPropertySize(image, nullptr, &size), InvalidParameter);
    EXPECT_EQ(GdipGetPropertyItemSize(image, 0x0112, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPropertyItem(image, 0x0112, size, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetAllPropertyItems(image, size, 1, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSetPropertyItem(image, nullptr), InvalidParameter);
    const PropertyItem typeless{0x0112, 2, 0, &number};
    EXPECT_EQ(GdipSetPropertyItem(image, &typeless), InvalidParameter);
    EXPECT_EQ(GdipRemovePropertyItem(nullptr, 0x0112), InvalidParameter);
}

TEST_F(Properties, AreSavedWithTheImage) {
    const test::TemporaryFolder folder;
    char text[] = "Ann";
    const PropertyItem artist{0x013B, sizeof text, 2, text};
    uint32_t rational[] = {1, 250};
    const PropertyItem exposure{0x829A, 8, 5, rational};
    for (const auto& [name, codec] : {std::pair("a.jpg", CodecJPEG), std::pair("a.png", CodecPNG),
                                      std::pair("a.tif", CodecTIFF)}) {
        GpImage* image = AsImage(Make(8, 8, PixelFormat24bppRGB));
        GdipSetPropertyItem(image, &artist);
        GdipSetPropertyItem(image, &exposure);
        const String path = folder.Path(name);
        ASSERT_EQ(GdipSaveImageToFile(image, path.data(), &codec, nullptr), Ok);
        GpImage* back = nullptr;
        ASSERT_EQ(GdipLoadImageFromFile(path.data(), &back), Ok);
        Keep(reinterpret_cast<GpBitmap*>(back));
        Values values = All(back);
        EXPECT_EQ(values[0x013B].second, Text("Ann")) << name;
        if (codec == CodecJPEG) {
            EXPECT_EQ(values[0x829A].second, Longs({1, 250}));
        }
    }
}

}  // namespace
}  // namespace vxgui::gdiplus
