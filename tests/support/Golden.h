#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vxgui::test {

/// A picture as tests compare it: 32-bit blue-green-red-alpha pixels, top row first.
struct TestPicture {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;

    uint32_t& At(int x, int y) { return pixels[static_cast<size_t>(y) * width + x]; }
    uint32_t At(int x, int y) const { return pixels[static_cast<size_t>(y) * width + x]; }
};

/// What a comparison found. `pixels` counts those with a channel that differs by more than the
/// tolerance.
struct PictureDifference {
    bool sameSize = true;
    int pixels = 0;
    int largest = 0;
    int firstX = -1;
    int firstY = -1;
    bool Equal() const { return sameSize && pixels == 0; }
};

PictureDifference ComparePictures(const TestPicture& actual, const TestPicture& expected,
                                  int tolerance);

/// Compares with tests/golden/NAME.png. On a difference it writes NAME.actual.png,
/// NAME.expected.png and NAME.difference.png to the build's test-output folder and fails the
/// test with their paths. With VXGUI_UPDATE_GOLDEN=1 in the environment it writes the golden
/// file instead.
void ExpectGolden(const std::string& name, const TestPicture& actual, int tolerance = 0);

bool WritePng(const std::string& path, const TestPicture& picture);
bool ReadPng(const std::string& path, TestPicture* picture);

/// A file of tests/data, whole.
std::vector<uint8_t> ReadTestFile(const std::string& relativePath);

}  // namespace vxgui::test
