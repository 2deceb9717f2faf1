#include "tests/fuzz/Edits.h"
#include "tests/fuzz/Sample.h"
#include "vxgui/theme/lint/CheckSkin.h"
#include "vxgui/theme/lint/PictureShelf.h"

namespace vxgui::fuzz {
namespace {

/// A folder in which one define file is written over and over.
class Scratch {
public:
    /// Checks what an author may have saved.
    void Check(const std::string& text, const char* name = "fuzz.theme") {
        findings_ += lint::CheckSkin(folder_.Write(name, text), shelf_).size();
    }
    /// Loads it with the sample's pictures, and paints what comes of it.
    void TryToPaint(const std::string& text) {
        const Ref<core7::DefineFile> file = core7::CreateDefineFile();
        const Ref<ThemeSet> set = New<ThemeSet>();
        file->OpenFile(folder_.Write("fuzz.theme", text));
        try {
            ThemeSetFromDefine(set, file, kSkins + "aurora");
        } catch (const Error&) {
            ++refused_;
        }
        PaintAll(*set);
    }
    int Refused() const { return refused_; }
    size_t Findings() const { return findings_; }

private:
    test::TemporaryFolder folder_;
    lint::PictureShelf shelf_;
    int refused_ = 0;
    size_t findings_ = 0;
};

TEST(DefineFuzz, TruncationsAreChecked) {
    const struct {
        const char *path, *name;
    } kSamples[] = {{"aurora/aurora.theme", "fuzz.theme"},
                    {"porcelain/porcelain.uis", "fuzz.uis"},
                    {"porcelain/taskbar.xp", "fuzz.xp"}};
    for (const auto& [path, name] : kSamples) {
        Scratch scratch;
        const std::string text = FileText(kSkins + path);
        for (size_t size = 0; size < text.size(); size += 13)
            scratch.Check(text.substr(0, size), name);
    }
    ExpectLittleMemory();
}

TEST(DefineFuzz, TwoThousandRandomEditsAreChecked) {
    Editor editor(20250);
    Scratch scratch;
    const std::string theme = FileText(kSkins + "aurora/aurora.theme");
    const std::string uis = FileText(kSkins + "porcelain/porcelain.uis");
    for (int i = 0; i < 1000; ++i) {
        scratch.Check(editor.Edit(theme, true));
        scratch.Check(editor.Edit(uis, true), "fuzz.uis");
    }
    EXPECT_GT(scratch.Findings(), 2000u);
    ExpectLittleMemory();
}

TEST(DefineFuzz, FiveHundredRandomlyEditedSkinsArePainted) {
    Editor editor(9);
    Scratch scratch;
    const std::string theme = FileText(kSkins + "aurora/aurora.theme");
    for (int i = 0; i < 500; ++i) scratch.TryToPaint(editor.Edit(theme, true));
    EXPECT_GT(scratch.Refused(), 10);
    EXPECT_LT(scratch.Refused(), 490);
    ExpectLittleMemory();
}

TEST(DefineFuzz, LongLinesAndManySectionsEnd) {
    Scratch scratch;
    std::string many = "[ThemeSet]\nThemes=100000\nFonts=1000\nTextStyles=1000\n";
    for (int i = 0; i < 20000; ++i)
        many += "[S" + std::to_string(i) + "]\nKey" + std::to_string(i) + "=1\n";
    scratch.Check(many);
    scratch.Check("[ThemeSet]\nThemes=1\n[Theme_01]\nFrameOrder=" + std::string(1 << 20, ',') +
                  "\n");
    scratch.Check("[ThemeSet]\n" + std::string(1 << 20, 'k') + "=1\n");
    ExpectLittleMemory();
}

}  // namespace
}  // namespace vxgui::fuzz
