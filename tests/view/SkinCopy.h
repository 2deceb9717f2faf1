#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>

#include "generated/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/view/ShownItem.h"
#include "vxgui/theme/ItemLook.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::view {

/// A sample skin in a folder of its own, where a test may edit it.
class SkinCopy {
public:
    /// "aurora/aurora.theme"
    explicit SkinCopy(const std::string& skin) {
        const std::filesystem::path from = std::string(VXGUI_SOURCE_DIR "/skins/") + skin;
        std::filesystem::copy(from.parent_path(), folder_.Path("skin").Utf8(),
                              std::filesystem::copy_options::recursive);
        path_ = folder_.Path("skin/" + from.filename().string()).Utf8();
    }
    const std::string& Path() const { return path_; }
    std::string Beside(const std::string& name) const { return folder_.Path(name).Utf8(); }
    std::string Text() const {
        std::ostringstream text;
        text << std::ifstream(path_).rdbuf();
        return text.str();
    }
    void Write(const std::string& text) const { std::ofstream(path_) << text; }
    /// Replaces the first place of a text in the define file.
    void Edit(const std::string& from, const std::string& to) const {
        std::string text = Text();
        text.replace(text.find(from), from.size(), to);
        Write(text);
    }

private:
    test::TemporaryFolder folder_;
    std::string path_;
};

/// What an item looks like at its own size and a larger one, with a caption, in all its states.
inline std::vector<uint32_t> PixelsOf(const SkinItem& item) {
    std::vector<uint32_t> pixels;
    const gdi::SIZE own = OwnSize(*item.item);
    for (const int32_t more : {0, 37}) {
        const gdi::SIZE size{std::min(own.cx, 400) + more, std::min(own.cy, 300) + more / 2};
        tool::Sheet sheet(size.cx, size.cy);
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            sheet.Fill(0xFF406080);
            PaintShown(sheet, {item.item, item.caption, size, state}, {0, 0});
            sheet.MakeOpaque();
            const uint32_t* first = &sheet.At(0, 0);
            pixels.insert(pixels.end(), first, first + size.cx * size.cy);
        }
    }
    return pixels;
}

/// The items whose pixels aren't the same, and those that one of the two lacks.
inline std::string DifferenceOf(const Skin& a, const Skin& b) {
    if (a.items.size() != b.items.size()) return "another number of items";
    std::string names;
    for (size_t i = 0; i < a.items.size(); ++i)
        if (PixelsOf(a.items[i]) != PixelsOf(b.items[i])) names += a.items[i].name.Utf8() + " ";
    return names;
}

}  // namespace vxgui::view
