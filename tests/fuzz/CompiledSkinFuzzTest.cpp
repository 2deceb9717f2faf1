#include "tests/fuzz/Edits.h"
#include "tests/fuzz/Sample.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ThemeSetFile.h"
#include "vxgui/theme/compiled/Container.h"

namespace vxgui::fuzz {
namespace {

/// A few items of the sample skin: a strip, a glyph, both.
CompiledSkin Sample() {
    const Ref<ThemeSet> whole = LoadThemeSetFile(kSkins + "aurora/aurora.theme");
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->Fonts(whole->Fonts());
    set->TextStyles(whole->TextStyles());
    for (const char* name : {"Theme_02", "Theme_05", "Theme_06"})
        set->Item(name, whole->Item(name));
    return {set, "[Theme_02]\nName=CheckBox\n"};
}

/// The file with the size and the checksum that its bytes have.
ByteArray Signed(ByteArray file) {
    if (file.size() < 20) return file;
    StoreLittle(file.data() + 8, static_cast<uint32_t>(file.size()));
    StoreLittle(file.data() + 12, core7::Checksum(file.data() + 16, file.size() - 16));
    return file;
}

/// Whether the file was taken; what was taken is painted.
bool Try(const ByteArray& file) {
    try {
        PaintAll(*CompiledSkinFrom(file).set);
        return true;
    } catch (const Error&) {
        return false;
    }
}

TEST(CompiledSkinFuzz, EveryTruncationIsRefused) {
    const ByteArray file = BytesOfCompiledSkin(Sample());
    for (size_t size = 0; size < file.size(); ++size) {
        const ByteArray part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_FALSE(Try(part)) << size;
        if (size % 3 == 0) Try(Signed(part));
    }
    ExpectLittleMemory();
}

TEST(CompiledSkinFuzz, FifteenHundredRandomEditsOfTheFileAreRefusedOrHarmless) {
    Editor editor(31);
    const std::string file = TextOf(BytesOfCompiledSkin(Sample()));
    for (int i = 0; i < 1500; ++i) {
        const ByteArray edited = BytesOf(editor.Edit(file, false));
        EXPECT_TRUE(!Try(edited) || edited == BytesOf(file));
        Try(Signed(edited));
    }
    ExpectLittleMemory();
}

TEST(CompiledSkinFuzz, TwoThousandRandomEditsOfWhatTheFileHoldsAreTakenOrRefused) {
    Editor editor(77);
    const ByteArray file = BytesOfCompiledSkin(Sample());
    const compiled::Container container(file);
    std::vector<compiled::Section> sections;
    for (size_t i = 0; i < container.Count(); ++i) {
        sections.push_back({container.KindOf(i), {}});
        container.Uncompress(i, &sections.back().bytes);
    }
    int taken = 0;
    for (int i = 0; i < 2000; ++i) {
        std::vector<compiled::Section> edited = sections;
        ByteArray& bytes = edited[editor.Below(edited.size())].bytes;
        bytes = BytesOf(editor.Edit(TextOf(bytes), false));
        taken += Try(compiled::WriteContainer(edited));
    }
    EXPECT_GT(taken, 0);
    EXPECT_LT(taken, 2000);
    ExpectLittleMemory();
}

}  // namespace
}  // namespace vxgui::fuzz
