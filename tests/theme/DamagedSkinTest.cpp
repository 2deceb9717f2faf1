#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <random>

#include "generated/Places.h"
#include "tests/support/ActedKernel.h"
#include "tests/support/MemoryUse.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/ThemeSet.h"

/// Skins that were cut off, mistyped or tampered with: whatever is in a file, loading it ends, and
/// at worst raises what it is documented to raise.
namespace vxgui {
namespace {

std::string BytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string Sample(const std::string& name) { return BytesOf(VXGUI_SOURCE_DIR "/skins/" + name); }

/// Makes one of the slips that hands, editors and transfers make. A seed is a whole run.
std::string Edited(std::string text, std::mt19937& random) {
    const auto upTo = [&](size_t count) { return random() % std::max<size_t>(count, 1); };
    const size_t at = upTo(text.size()), length = upTo(1u << upTo(9));
    switch (upTo(6)) {
        case 0:
            text[at] = static_cast<char>(random());
            return text;
        case 1:
            return text.erase(at, length);
        case 2:
            return text.insert(at, text.substr(upTo(text.size()), length));
        case 3:
            return text.insert(at, std::to_string(static_cast<int32_t>(random())));
        case 4:
            return text.insert(at, 1, "=[],;\"\n\0-9"[upTo(10)]);
        default:
            return text.replace(at, std::min(length, text.size() - at), length, '9');
    }
}

using Load = std::function<void(const std::string& text)>;

void LoadAllTruncations(const std::string& text, const Load& load) {
    for (size_t length = 0; length <= text.size(); ++length) load(text.substr(0, length));
}

// Some ten thousand slips altogether, one to four at a time.
void LoadEdits(const std::string& text, int count, const Load& load) {
    for (int seed = 0; seed < count; ++seed) {
        std::mt19937 random(static_cast<uint32_t>(seed));
        std::string edited = text;
        for (size_t slips = 1 + random() % 4; slips > 0; --slips) edited = Edited(edited, random);
        SCOPED_TRACE(seed);
        load(edited);
        if (testing::Test::HasFailure()) return;
    }
}

Ref<core7::DefineFile> Read(const std::string& text) {
    Ref<core7::DefineFile> file = core7::CreateDefineFile();
    file->LoadText(text);
    return file;
}

void LoadThemeSetText(const std::string& text) {
    try {
        ThemeSetFromDefine(New<ThemeSet>(), Read(text), "/nowhere");
    } catch (const Error& error) {
        const auto number = static_cast<ErrorNumber>(error.Number());
        EXPECT_TRUE(number == ErrorNumber::Subscript || number == ErrorNumber::Overflow ||
                    number == ErrorNumber::ObjectNotSet)
            << error.Description().Utf8();
    }
}

void LoadUisText(const std::string& text) {
    const Ref<core7::DefineFile> file = Read(text);
    for (const String& section : file->SectionNames())
        EXPECT_TRUE(New<ThemeItem>()->FromUis(file, String("/nowhere"), section, ""));
}

// A cut changes the section that it goes through alone.
void LoadLastUisSection(const std::string& text) {
    const Ref<core7::DefineFile> file = Read(text);
    const std::vector<String> sections = file->SectionNames();
    if (sections.empty()) return;
    EXPECT_TRUE(New<ThemeItem>()->FromUis(file, String("/nowhere"), sections.back(), ""));
}

class DamagedSkin : public testing::Test {
protected:
    ~DamagedSkin() override { kernel::SetKernel(before_); }
    void TearDown() override { test::ExpectLittleMemory(); }

private:
    ActedKernel quiet_;  // its message boxes are written down, not shown
    kernel::Kernel* const before_ = kernel::SetKernel(&quiet_);
};

TEST_F(DamagedSkin, ThemeSetCutOffAnywhereLoadsOrSaysWhy) {
    LoadAllTruncations(Sample("aurora/aurora.theme"), LoadThemeSetText);
}

TEST_F(DamagedSkin, UisFileCutOffAnywhereLoads) {
    LoadAllTruncations(Sample("porcelain/porcelain.uis"), LoadLastUisSection);
}

TEST_F(DamagedSkin, ThemeSetWithSlipsLoadsOrSaysWhy) {
    LoadEdits(Sample("aurora/aurora.theme"), 1600, LoadThemeSetText);
}

TEST_F(DamagedSkin, UisFileWithSlipsLoads) {
    LoadEdits(Sample("porcelain/porcelain.uis"), 1200, LoadUisText);
}

TEST_F(DamagedSkin, TaskbarFileWithSlipsLoads) {
    LoadEdits(Sample("porcelain/taskbar.xp"), 1200, LoadUisText);
}

#ifdef VXGUI_STYLES_FOLDER

class DamagedModule : public testing::Test {
protected:
    void Load(const std::string& bytes) {
        folder_.Write("Styles.dll", bytes);
        const Ref<SkinDef> skin = New<SkinDef>();
        skin->DefFile("res:" + folder_.Path("Styles.dll") + ":blue");
        skin->InitializeXPTaskbar();
        if (!skin->TaskbarFile()) return;
        for (const char* part : {"MenuItem", "Taskbar.StartButton", "TaskBandGroup.Toolbar"})
            EXPECT_NE(skin->Item(part), nullptr);
    }

    const std::string module_ = BytesOf(VXGUI_STYLES_FOLDER "/../share/vxgui/DefaultStyles.dll");
    test::TemporaryFolder folder_;
};

TEST_F(DamagedModule, CutOffAnywhereHasItsStyleOrHasNot) {
    for (size_t length = 0; length < module_.size(); length += length < 600 ? 7 : 4999)
        Load(module_.substr(0, length));
}

// The headers and directories come first; behind them lie the pictures, each with its own decoder.
TEST_F(DamagedModule, WithChangedBytesHasItsStyleOrHasNot) {
    for (int seed = 0; seed < 300; ++seed) {
        std::mt19937 random(static_cast<uint32_t>(seed));
        std::string bytes = module_;
        const size_t reach = seed % 3 == 0 ? bytes.size() : 9000;
        for (int n = 0; n < 5; ++n) bytes[random() % reach] = static_cast<char>(random());
        SCOPED_TRACE(seed);
        Load(bytes);
    }
}

#endif

}  // namespace
}  // namespace vxgui
