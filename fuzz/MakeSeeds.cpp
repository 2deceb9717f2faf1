// Writes the seeds that are no text: make_seeds FOLDER. They are kept in fuzz/seeds/, so that this
// is run only when a format has changed.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "generated/Places.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ThemeSetFile.h"

namespace vxgui {
namespace {

const std::string kSkins = VXGUI_SOURCE_DIR "/skins/";

void Write(const std::filesystem::path& path, const ByteArray& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    std::printf("%s: %zu bytes\n", path.c_str(), bytes.size());
}

ByteArray FileBytes(const std::string& path) {
    ByteArray bytes;
    core7::ReadWholeFile(path, &bytes);
    return bytes;
}

// A few items of the sample skin: a strip, a glyph, both.
Ref<ThemeSet> Sample() {
    const Ref<ThemeSet> whole = LoadThemeSetFile(kSkins + "aurora/aurora.theme");
    const auto set = New<ThemeSet>();
    set->Fonts(whole->Fonts());
    set->TextStyles(whole->TextStyles());
    for (const char* name : {"Theme_02", "Theme_05"}) set->Item(name, whole->Item(name));
    return set;
}

Ref<cAlphaDIBSection> Picture() {
    const auto picture = New<cAlphaDIBSection>();
    picture->Create(12, 9);
    picture->RandomiseBits();
    return picture;
}

ByteArray Module() {
    const ByteArray style = FileBytes(kSkins + "porcelain/porcelain.uis");
    const ByteArray bitmap = FileBytes(kSkins + "porcelain/taskbar/Horz.bmp");
    const auto resource = [](const char* type, const char* name, const ByteArray& bytes) {
        return kernel::ModuleResource{type, name, {bytes.data(), bytes.size()}};
    };
    return kernel::WriteResourceModule(
        {resource("TxtFiles", "blue.INI", style), resource("Image", "Horz.bmp", bitmap)});
}

void WriteSeeds(const std::filesystem::path& folder) {
    ByteArray surface;
    Picture()->ToByteArray(surface, 0);
    Write(folder / "Surface/noise.bin", surface);
    Write(folder / "Compressor/surface.zst", core7::Compress(surface));
    const Ref<ThemeSet> set = Sample();
    const auto bag = New<ole::PropertyBag>();
    set->Item(1)->Image(Picture());
    set->Item(1)->WriteProperties(bag);
    Write(folder / "Bag/item.cbor", bag->Contents());
    Write(folder / "CompiledSkin/two.vxs", BytesOfCompiledSkin({set, "[Theme_02]\nName=A\n"}));
    Write(folder / "StyleModule/blue.dll", Module());
    ByteArray calls(400);
    uint32_t seed = 5;
    for (uint8_t& byte : calls)
        byte = static_cast<uint8_t>((seed = seed * 1664525 + 1013904223) >> 24);
    Write(folder / "Calls/any.bin", calls);
    Write(folder / "Text/any.bin", {calls.begin(), calls.begin() + 60});
}

}  // namespace
}  // namespace vxgui

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_seeds FOLDER\n");
        return 2;
    }
    vxgui::WriteSeeds(argv[1]);
    return 0;
}
