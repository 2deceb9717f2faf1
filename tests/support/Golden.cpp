#include "tests/support/Golden.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "generated/Places.h"

namespace vxgui::test {
namespace {

int Channel(uint32_t pixel, int index) { return static_cast<int>(pixel >> (8 * index) & 255); }

int LargestDifference(uint32_t a, uint32_t b) {
    int largest = 0;
    for (int i = 0; i < 4; ++i)
        largest = std::max(largest, std::abs(Channel(a, i) - Channel(b, i)));
    return largest;
}

// White where the pictures agree, red where they don't.
TestPicture DifferencePicture(const TestPicture& a, const TestPicture& b) {
    TestPicture result = a;
    for (size_t i = 0; i < a.pixels.size(); ++i) {
        const bool same = i < b.pixels.size() && a.pixels[i] == b.pixels[i];
        result.pixels[i] = same ? 0xFFFFFFFF : 0xFFFF0000;
    }
    return result;
}

png_image PngHeader(int width, int height) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_BGRA;
    return image;
}

}  // namespace

PictureDifference ComparePictures(const TestPicture& actual, const TestPicture& expected,
                                  int tolerance) {
    PictureDifference found;
    found.sameSize = actual.width == expected.width && actual.height == expected.height;
    if (!found.sameSize) return found;
    for (int y = 0; y < actual.height; ++y) {
        for (int x = 0; x < actual.width; ++x) {
            const int difference = LargestDifference(actual.At(x, y), expected.At(x, y));
            found.largest = std::max(found.largest, difference);
            if (difference <= tolerance) continue;
            if (found.pixels++ == 0) {
                found.firstX = x;
                found.firstY = y;
            }
        }
    }
    return found;
}

bool WritePng(const std::string& path, const TestPicture& picture) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    png_image image = PngHeader(picture.width, picture.height);
    return png_image_write_to_file(&image, path.c_str(), 0, picture.pixels.data(), 0, nullptr) != 0;
}

bool ReadPng(const std::string& path, TestPicture* picture) {
    png_image image = PngHeader(0, 0);
    if (!png_image_begin_read_from_file(&image, path.c_str())) return false;
    image.format = PNG_FORMAT_BGRA;
    picture->width = static_cast<int>(image.width);
    picture->height = static_cast<int>(image.height);
    picture->pixels.resize(static_cast<size_t>(image.width) * image.height);
    return png_image_finish_read(&image, nullptr, picture->pixels.data(), 0, nullptr) != 0;
}

void ExpectGolden(const std::string& name, const TestPicture& actual, int tolerance) {
    const std::string golden = std::string(VXGUI_SOURCE_DIR "/tests/golden/") + name + ".png";
    if (std::getenv("VXGUI_UPDATE_GOLDEN")) {
        ASSERT_TRUE(WritePng(golden, actual)) << golden;
        return;
    }
    TestPicture expected;
    ASSERT_TRUE(ReadPng(golden, &expected)) << "no golden picture: " << golden;
    const PictureDifference found = ComparePictures(actual, expected, tolerance);
    if (found.Equal()) return;
    const std::string stem = std::string(VXGUI_TEST_OUTPUT_DIR "/") + name;
    WritePng(stem + ".actual.png", actual);
    WritePng(stem + ".expected.png", expected);
    WritePng(stem + ".difference.png", DifferencePicture(actual, expected));
    ADD_FAILURE() << name << ": " << found.pixels << " pixels differ by up to " << found.largest
                  << ", the first at " << found.firstX << "," << found.firstY << "; see " << stem
                  << ".{actual,expected,difference}.png";
}

std::vector<uint8_t> ReadTestFile(const std::string& relativePath) {
    std::ifstream file(std::string(VXGUI_SOURCE_DIR "/tests/data/") + relativePath,
                       std::ios::binary);
    EXPECT_TRUE(file) << relativePath;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace vxgui::test
