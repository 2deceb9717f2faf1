#include "tests/image/TgaBytes.h"

namespace vxgui::test {

namespace {

void Append(std::vector<uint8_t>& bytes, uint32_t value, int size) {
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

}  // namespace

std::vector<uint8_t> TgaBytes::Bytes() const {
    std::vector<uint8_t> bytes;
    for (const int value : {idLength, mapType, imageType}) Append(bytes, value, 1);
    Append(bytes, mapFirst, 2);
    Append(bytes, mapLength, 2);
    Append(bytes, mapEntrySize, 1);
    Append(bytes, 0, 4);  // the origin
    Append(bytes, width, 2);
    Append(bytes, height, 2);
    Append(bytes, depth, 1);
    Append(bytes, descriptor, 1);
    bytes.insert(bytes.end(), idLength, 0xEE);
    bytes.insert(bytes.end(), map.begin(), map.end());
    bytes.insert(bytes.end(), pixels.begin(), pixels.end());
    if (footer) {
        Append(bytes, extensionOffset, 4);
        Append(bytes, 0, 4);
        const char signature[] = "TRUEVISION-XFILE.";
        bytes.insert(bytes.end(), signature, signature + sizeof signature);
    }
    return bytes;
}

}  // namespace vxgui::test
