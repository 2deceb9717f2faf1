#include "tools/view/recolour/StyleFolder.h"

#include <filesystem>

#include "tools/view/SkinDefines.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/StyleModule.h"

namespace vxgui::view {
namespace {

namespace fs = std::filesystem;

/// A module's resources, as files of a folder.
class Unpacked {
public:
    Unpacked(const LoadedModule& module, const std::string& folder)
        : module_(module), folder_(folder) {}

    void Write(const char* type, const String& name, const fs::path& as) const {
        const ByteArray bytes = core7::TheResourceService().ReadResource(module_.get(), type, name);
        const fs::path path = folder_ / as;
        if (bytes.empty()) return;  // parts may have no picture
        fs::create_directories(path.parent_path());
        if (!core7::WriteWholeFile(path.string(), bytes.data(), bytes.size()))
            tool::Fail(path.string(), "can't be written");
    }

    // Names that would lead out of the folder are those of no picture.
    void WritePictures(const std::string& uis) const {
        const SkinDefines skin(uis);
        for (const PictureUse& use : skin.Pictures()) {
            const fs::path name = fs::path(use.path).lexically_normal().lexically_relative(folder_);
            if (!name.empty() && *name.begin() != "..") Write("Image", name.string(), name);
        }
    }

private:
    const LoadedModule& module_;
    const fs::path folder_;
};

// Names the taskbar's file, which a module has by its own rule.
void NameTaskbar(const std::string& uis, const std::string& taskbar) {
    const Ref<core7::DefineEditor> editor = core7::CreateDefineEditor();
    if (!editor->OpenFile(uis)) tool::Fail(uis, "can't be read");
    editor->SetString("XPTaskbar", "File", taskbar);
    if (!editor->Save(uis)) tool::Fail(uis, "can't be written");
}

}  // namespace

std::string WriteStyle(const std::string& reference, const std::string& folder) {
    const StyleReference style = ParseStyleReference(reference);
    const LoadedModule module(FindStyleModule(style.module, ""));
    if (!module) tool::Fail(reference, "no such module");
    const std::string uis = style.style.Utf8() + ".uis", taskbar = "taskbar.xp";
    const Unpacked unpacked(module, folder);
    unpacked.Write("TxtFiles", style.style + ".INI", uis);
    unpacked.Write("TxtFiles", style.style + "TaskBar.INI", taskbar);
    const std::string path = (fs::path(folder) / uis).string();
    NameTaskbar(path, taskbar);
    unpacked.WritePictures(path);
    return path;
}

}  // namespace vxgui::view
