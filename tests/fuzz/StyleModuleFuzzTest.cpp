#include "tests/fuzz/Edits.h"
#include "tests/fuzz/Sample.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/theme/SkinDef.h"

namespace vxgui::fuzz {
namespace {

/// A packed module with one style and two of its pictures.
std::string Module() {
    const std::pair<const char*, std::string> files[] = {
        {"blue.INI", FileText(kSkins + "porcelain/porcelain.uis")},
        {"blueTaskBar.INI",
         "[Taskbar.Horz]\nImage=Horz.bmp\nFrameCount=1\n[Taskbar.SizeHorz]\n"
         "Image=Size.bmp\nFrameCount=1\nTextFont=0\n"},
        {"Horz.bmp", FileText(kSkins + "porcelain/taskbar/Horz.bmp")},
        {"Size.bmp", FileText(kSkins + "porcelain/taskbar/Size.bmp")},
    };
    std::vector<kernel::ModuleResource> resources;
    for (const auto& [name, bytes] : files)
        resources.push_back({std::string(name).ends_with(".bmp") ? "Image" : "TxtFiles",
                             name,
                             {reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()}});
    return TextOf(kernel::WriteResourceModule(resources));
}

/// Reads each byte of each resource, so that one outside the file would be found.
size_t SumOfResources(const std::string& module) {
    size_t sum = 0;
    const ByteArray file = BytesOf(module);
    for (const auto& resource : kernel::ResourcesOfFile({file.data(), file.size()})) {
        const auto* bytes = static_cast<const uint8_t*>(resource.block.data);
        for (size_t i = 0; i < resource.block.size; ++i) sum += bytes[i];
    }
    return sum;
}

/// Starts a skin from the module, as a host does.
class Scratch {
public:
    bool Try(const std::string& module) {
        const String path = folder_.Write("Styles.dll", module);
        const Ref<SkinDef> skin = New<SkinDef>();
        skin->SkinPath(folder_.Path());
        skin->DefFile("res:" + path + ":blue");
        skin->InitializeXPTaskbar();
        const Ref<ThemeItem> item = skin->Item("Taskbar.Horz");
        return item && item->Image();
    }

private:
    test::TemporaryFolder folder_;
};

TEST(StyleModuleFuzz, TheWholeModuleIsRead) {
    EXPECT_GT(SumOfResources(Module()), 0u);
    EXPECT_TRUE(Scratch().Try(Module()));
}

TEST(StyleModuleFuzz, EveryTruncationIsReadOrRefused) {
    Scratch scratch;
    const std::string module = Module();
    for (size_t size = 0; size < module.size(); size += 3) SumOfResources(module.substr(0, size));
    for (size_t size = 0; size < module.size(); size += 97) scratch.Try(module.substr(0, size));
    ExpectLittleMemory();
}

TEST(StyleModuleFuzz, FourThousandRandomEditsAreReadOrRefused) {
    Editor editor(4);
    Scratch scratch;
    const std::string module = Module();
    for (int i = 0; i < 4000; ++i) {
        const std::string edited = editor.Edit(module, false);
        SumOfResources(edited);
        if (i % 10 == 0) scratch.Try(edited);
    }
    ExpectLittleMemory();
}

}  // namespace
}  // namespace vxgui::fuzz
