#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <thread>

#include "generated/Places.h"
#include "vxgui/platform/codecs.h"
#include "vxgui/platform/core7.h"

namespace vxgui {
namespace {

std::string Grouped(uint64_t value) {
    std::string digits = std::to_string(value);
    for (size_t at = digits.size(); at > 3;) digits.insert(at -= 3, ",");
    return digits;
}

// As the page writes numbers: whole mebibytes by their unit, all others by their digits.
std::string Written(const std::string& name, uint64_t value) {
    const bool bytes = name.ends_with("bytes") || name.ends_with("Bytes");
    if (bytes && value % (1 << 20) == 0) return Grouped(value >> 20) + " MiB";
    return Grouped(value);
}

using Rows = std::map<std::string, std::string>;

/// Each limit by its name, and what it is at first. A new member doesn't compile before it is
/// entered here.
Rows RowsOf(const Limits& limits) {
    const auto& [picture, define, jpegScans, fileBytes, decompressedBytes, bagBytes, bagEntries,
                 streamBytes, moduleBytes, moduleResources, themeSections, skinFileBytes, skinBytes,
                 skinSections, skinRecords, bitmapBytes, imageBytes, regionSteps, regionRectangles,
                 textUnits] = limits;
    const auto& [side, area, pictureBytes] = picture;
    const auto& [defineBytes, keys] = define;
    Rows rows;
    const auto add = [&rows](const std::string& name, auto value) {
        rows[name] = Written(name, static_cast<uint64_t>(value));
    };
    add("picture.side", side);
    add("picture.area", area);
    add("picture.bytes", pictureBytes);
    add("define.bytes", defineBytes);
    add("define.keys", keys);
    add("jpegScans", jpegScans);
    add("fileBytes", fileBytes);
    add("decompressedBytes", decompressedBytes);
    add("bagBytes", bagBytes);
    add("bagEntries", bagEntries);
    add("streamBytes", streamBytes);
    add("moduleBytes", moduleBytes);
    add("moduleResources", moduleResources);
    add("themeSections", themeSections);
    add("skinFileBytes", skinFileBytes);
    add("skinBytes", skinBytes);
    add("skinSections", skinSections);
    add("skinRecords", skinRecords);
    add("bitmapBytes", bitmapBytes);
    add("imageBytes", imageBytes);
    add("regionSteps", regionSteps);
    add("regionRectangles", regionRectangles);
    add("textUnits", textUnits);
    return rows;
}

/// The lines "| `name` | default | ..." of the page.
Rows RowsOfPage() {
    std::ifstream page(VXGUI_SOURCE_DIR "/docs/limits.md");
    Rows rows;
    for (std::string line; std::getline(page, line);) {
        if (!line.starts_with("| `")) continue;
        const size_t end = line.find("` | "), next = line.find(" |", end + 4);
        rows[line.substr(3, end - 3)] = line.substr(end + 4, next - end - 4);
    }
    return rows;
}

TEST(Limits, ThePageListsEachWithWhatItIsAtFirst) { EXPECT_EQ(RowsOfPage(), RowsOf(Limits())); }

TEST(Limits, EachApartmentHasItsOwn) {
    ApartmentLimits().define.keys = 7;
    std::thread([] { EXPECT_EQ(ApartmentLimits().define.keys, 100000u); }).join();
    EXPECT_EQ(ApartmentLimits().define.keys, 7u);
    ApartmentLimits() = {};
}

TEST(Limits, TheSuppliersPartsArePartsOfTheWhole) {
    EXPECT_EQ(&codecs::ApartmentDecodeLimits(), &ApartmentLimits().picture);
    EXPECT_EQ(&core7::ApartmentDefineLimits(), &ApartmentLimits().define);
    EXPECT_EQ(&core7::ApartmentDecompressionLimit(), &ApartmentLimits().decompressedBytes);
}

}  // namespace
}  // namespace vxgui
