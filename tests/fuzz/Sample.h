#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "generated/Places.h"
#include "tests/support/MemoryUse.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/base/Variant.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui::fuzz {

using test::ExpectLittleMemory;

inline const std::string kSkins = VXGUI_SOURCE_DIR "/skins/";

inline std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

inline ByteArray BytesOf(const std::string& text) { return {text.begin(), text.end()}; }
inline std::string TextOf(const ByteArray& bytes) { return {bytes.begin(), bytes.end()}; }

/// Paints each item in each state, wherever its file has led it.
inline void PaintAll(const ThemeSet& set) {
    if (!set.ThemeItems()) return;
    constexpr int32_t kWidth = 40, kHeight = 30;
    std::vector<uint32_t> pixels(kWidth * kHeight);
    const gdi::HDC dc = gdi::CreateHostDC({pixels.data(), kWidth, kHeight, kWidth * 4, false});
    for (const Ref<ThemeItem>& item : *set.ThemeItems()) {
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            item->State(state);
            item->DrawBackground(dc, 1, 2, kWidth - 2, kHeight - 4, -1, -1);
        }
    }
    gdi::DeleteDC(dc);
}

}  // namespace vxgui::fuzz
