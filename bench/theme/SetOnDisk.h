#pragma once

#include <cairo.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "bench/theme/Frame.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ThemeSetFile.h"

namespace vxgui::bench {

/// A theme set of two hundred items in a folder of its own, as a define file with its pictures and
/// as a compiled skin. Each item has a strip of six frames of its own, every fourth one a glyph;
/// half of the pictures are TGA, half PNG.
class SetOnDisk {
public:
    static constexpr int kItems = 200, kFrames = 6, kFonts = 4, kStyles = 8, kGlyphs = 5;

    SetOnDisk() {
        for (int i = 0; i < kGlyphs; ++i) WritePicture("glyph" + std::to_string(i), 13 * 2, 13, i);
        std::string text = "[ThemeSet]\nFonts=" + std::to_string(kFonts) +
                           "\nTextStyles=" + std::to_string(kStyles) +
                           "\nThemes=" + std::to_string(kItems) + "\n";
        for (int i = 0; i < kFonts; ++i) {
            text += Section("Font_", i) + "FontName=DejaVu Sans\nsize=" + std::to_string(9 + i) +
                    "\nFontWeight=700\n";
        }
        for (int i = 0; i < kStyles; ++i) {
            text += Section("TextStyle_", i) + "TextColor=238,246,252\nTextAlignHorz=1\n" +
                    "TextAlignVert=1\nDrawStyle=1\nShadowColor=10,16,24\nShadow=1\n";
        }
        for (int i = 0; i < kItems; ++i) text += Item(i);
        define = folder_.Write("set.theme", text);
        compiled = folder_.Path("set.vxskin");
        SaveCompiledSkin({LoadThemeSetFile(define), text}, compiled);
    }

    /// Calls `visit(path)` for each picture that the define file names, as often as it names it.
    template <class Visit>
    void ForEachPicture(Visit visit) const {
        for (int i = 0; i < kItems; ++i) {
            visit(folder_.Path(FileName("strip" + std::to_string(i), i)));
            if (i % 4 == 0) visit(folder_.Path(FileName(GlyphOf(i), i / 4 % kGlyphs)));
        }
    }

    String define, compiled;

private:
    static std::string Section(const char* prefix, int i) {
        const std::string number = std::to_string(i + 1);
        return "\n[" + (prefix + std::string(number.size() < 2 ? "0" : "")) + number + "]\n";
    }
    static std::string GlyphOf(int i) { return "glyph" + std::to_string(i / 4 % kGlyphs); }
    static std::string FileName(const std::string& name, int i) {
        return name + (i % 2 ? ".png" : ".tga");
    }

    std::string Item(int i) const {
        const std::string strip = "strip" + std::to_string(i);
        WritePicture(strip, kFrame * kFrames, kFrame, i);
        std::string text = Section("Theme_", i) + "Name=Item" + std::to_string(i) +
                           "\nImage=" + FileName(strip, i) +
                           "\nFrames=6\nFrameOrder=0,1,2,3,4,5,2,-1,5\nImageMargin=11,9,11,9\n"
                           "ImageTile=1,0,1,0,1\nContentMargin=12,5,12,8\n"
                           "Fonts=1,1,1,1,2,1,1,1,1\nTextStyles=1,4,1,3,1,1,1,1,4\n";
        if (i % 4 == 0) {
            text += "GlyphImage=" + FileName(GlyphOf(i), i / 4 % kGlyphs) +
                    "\nGlyphFrames=2\nGlyphAlign=4\nGlyphMargin=2,2,2,2\n";
        }
        return text;
    }

    // A plate with a slope of colour and a soft rim, as skins have them.
    static std::vector<uint32_t> Plate(int width, int height, int seed) {
        std::vector<uint32_t> words;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const int column = x % height, rim = std::min({column, y, height - 1 - column,
                                                               height - 1 - y});
                const int alpha = rim < 2 ? 90 * (rim + 1) : 255;
                const int shade = 60 + 3 * y + (seed * 7 + x / height * 9) % 60;
                const auto channel = [&](int part) {
                    return static_cast<uint32_t>(shade * part / 4 * alpha / 255);
                };
                words.push_back(static_cast<uint32_t>(alpha) << 24 | channel(2) << 16 |
                                channel(3) << 8 | channel(4));
            }
        }
        return words;
    }

    void WritePicture(const std::string& name, int width, int height, int seed) const {
        std::vector<uint32_t> words = Plate(width, height, seed);
        auto* bytes = reinterpret_cast<uint8_t*>(words.data());
        if (seed % 2) {
            const std::string path = folder_.Path(name + ".png").Utf8();
            cairo_surface_t* const surface = cairo_image_surface_create_for_data(
                bytes, CAIRO_FORMAT_ARGB32, width, height, width * 4);
            cairo_surface_write_to_png(surface, path.c_str());
            cairo_surface_destroy(surface);
        } else {
            const uint8_t header[18] = {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                        static_cast<uint8_t>(width), 0,
                                        static_cast<uint8_t>(height), 0, 32, 0x28};
            folder_.Write(name + ".tga",
                          std::string(header, header + sizeof header) +
                              std::string(bytes, bytes + words.size() * 4));
        }
    }

    test::TemporaryFolder folder_;
};

}  // namespace vxgui::bench
