#include "tests/theme/SkinWorld.h"

#include "vxgui/frame/modUtilities.h"

namespace vxgui::test {
namespace {

SkinWorld* gWorld = nullptr;

class WorldFileSystem final : public core7::FileSystem {
public:
    String BuildPath(const String& folder, const String& name) override {
        return Real().BuildPath(folder, name);
    }
    bool FileExists(const String& path) override { return gWorld->Ask(path.Utf8()); }
    String GetParentFolderName(const String& path) override {
        return Real().GetParentFolderName(path);
    }
    String GetExtensionName(const String& path) override { return Real().GetExtensionName(path); }

private:
    static core7::FileSystem& Real() { return core7::ThePathService().TheFileSystem(); }
};

class WorldPaths final : public core7::PathService {
public:
    String JoinPath(const std::vector<String>& parts) override {
        return core7::ThePathService().JoinPath(parts);
    }
    bool FileExists(const String& path) override { return gWorld->Ask(path.Utf8()); }
    bool PathExists(const String& path) override { return FileExists(path); }
    core7::FileSystem& TheFileSystem() override { return *files_; }

private:
    const Ref<WorldFileSystem> files_ = New<WorldFileSystem>();
};

class WorldResources final : public core7::ResourceService {
public:
    ByteArray ReadResource(kernel::HMODULE, const String& type, const String& name) override {
        const std::string key = type.Utf8() + "/" + name.Utf8();
        gWorld->asked.push_back(key);
        const std::string& bytes = gWorld->resources[key];
        return {bytes.begin(), bytes.end()};
    }
    bool IsEmptyArray(const ByteArray& bytes) override { return bytes.empty(); }
};

class WorldDefineFile final : public core7::DefineFile {
public:
    String GetString(const String& section, const String& key, const String& fallback) override {
        return real_->GetString(section, key, fallback);
    }
    int32_t GetInteger(const String& section, const String& key, const String& fallback) override {
        return real_->GetInteger(section, key, fallback);
    }
    double GetNumber(const String& section, const String& key, const String& fallback) override {
        return real_->GetNumber(section, key, fallback);
    }
    std::vector<String> SectionNames() override { return real_->SectionNames(); }
    std::vector<String> KeyNames(const String& section) override {
        return real_->KeyNames(section);
    }
    bool OpenFile(const String& path) override {
        return gWorld->Exists(path.Utf8()) && LoadText(gWorld->files[path.Utf8()]);
    }
    bool LoadText(const String& text) override { return real_->LoadText(text); }
    String Path() const override { return real_->Path(); }
    const std::vector<core7::DefineProblem>& Problems() const override { return real_->Problems(); }
    core7::DefinePosition PositionOf(const String& section, const String& key) const override {
        return real_->PositionOf(section, key);
    }
    core7::DefinePosition PositionOf(const String& section) const override {
        return real_->PositionOf(section);
    }

private:
    const Ref<core7::DefineFile> real_ = core7::CreateDefineFile();
};

void Copy(const std::u16string& text, char16_t* to, int length) {
    const size_t count = std::min(text.size(), static_cast<size_t>(length) - 1);
    std::copy_n(text.begin(), count, to);
    to[count] = 0;
}

int32_t WorldThemeName(char16_t* file, int fileLength, char16_t* colour, int colourLength,
                       char16_t*, int) {
    Copy(gWorld->styleFile, file, fileLength);
    Copy(gWorld->scheme, colour, colourLength);
    return gWorld->styleResult;
}

}  // namespace

SkinWorld::SkinWorld() : before_(gServices) {
    SetUpApartment();  // not by the first object, which would leave its traces among the calls
    gWorld = this;
    kernelBefore_ = kernel::SetKernel(&kernel);
    static const Ref<WorldPaths> paths = New<WorldPaths>();
    static const Ref<WorldResources> moduleResources = New<WorldResources>();
    gServices.pathService = []() -> core7::PathService& { return *paths; };
    gServices.resourceService = []() -> core7::ResourceService& { return *moduleResources; };
    gServices.createDefineFile = []() -> Ref<core7::DefineFile> { return New<WorldDefineFile>(); };
    gServices.currentThemeName = &WorldThemeName;
}

SkinWorld::~SkinWorld() {
    gServices = before_;
    kernel::SetKernel(kernelBefore_);
    gWorld = nullptr;
}

void SkinWorld::AddModule(const std::string& path, const std::string& style, const std::string& uis,
                          const std::string& taskbar) {
    AddFile(path);
    kernel.Add(path);
    resources["TxtFiles/" + style + ".INI"] = uis;
    resources["TxtFiles/" + style + "TaskBar.INI"] = taskbar;
}

}  // namespace vxgui::test
