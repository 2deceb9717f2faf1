#include "vxgui/theme/StyleModule.h"

#include <algorithm>

#include "vxgui/base/Error.h"
#include "vxgui/frame/Services.h"

namespace vxgui {
namespace {

constexpr std::u16string_view kPrefix = u"res:";
const char* const kDefaultModule = "DefaultStyles.dll";
const char* const kDefaultStyle = "blue";
const char* const kSchemedStyle = "Luna.msstyles";
constexpr size_t kSchemedStyleLength = 13;

// Where the library's own data lies, seen from the library or from a program that it is linked
// into: the build folder and a folder in it, lib or bin of an installation, and lib/MACHINE.
const char* const kLibrarysData[] = {"share/vxgui", "../share/vxgui", "../../share/vxgui"};

String Or(String text, const char* fallback) { return text.empty() ? fallback : text; }

}  // namespace

bool IsStyleReference(const String& definition) { return definition.view().starts_with(kPrefix); }

String ReferenceOfCurrentScheme() {
    const String scheme = CurrentColourSchemeName();
    if (scheme == "HomeStead") return "res:DefaultStyles:homestead";
    if (scheme == "Metallic") return "res:DefaultStyles:metallic";
    return "res:DefaultStyles:blue";
}

String CurrentColourSchemeName() {
    constexpr int kLength = 260;
    char16_t file[kLength] = {}, colour[kLength] = {}, size[kLength] = {};
    const int32_t result =
        gServices.currentThemeName(file, kLength, colour, kLength, size, kLength);
    file[kLength - 1] = colour[kLength - 1] = 0;  // whatever the service wrote
    const bool schemed = String(file).Right(kSchemedStyleLength).EqualsNoCase(kSchemedStyle);
    return result == uxtheme::S_OK && schemed ? String(colour) : String();
}

StyleReference ParseStyleReference(const String& reference) {
    String rest = reference.Mid(kPrefix.size());
    if (rest.empty()) rest = String(kDefaultModule) + ":" + kDefaultStyle;
    const size_t colon = rest.view().rfind(u':');
    if (colon == String::npos)
        throw Error(ErrorNumber::InvalidCall, "SkinDef", "No style in " + reference);
    String module = Or(rest.Left(colon), kDefaultModule);
    if (gServices.pathService().TheFileSystem().GetExtensionName(module).empty()) module += ".dll";
    return {module, Or(rest.Mid(colon + 1), kDefaultStyle)};
}

String FindStyleModule(const String& name, const String& skinPath) {
    core7::PathService& paths = gServices.pathService();
    core7::FileSystem& files = paths.TheFileSystem();
    if (paths.FileExists(name)) return name;
    kernel::Kernel& kernel = kernel::TheKernel();
    const String program = files.GetParentFolderName(kernel.GetProgramFileName());
    const String library = files.GetParentFolderName(kernel.GetModuleFileNameA(nullptr));
    std::vector<String> candidates = {files.BuildPath(skinPath, name),
                                      files.BuildPath(program, name)};
    for (const char* folder : kLibrarysData)
        candidates.push_back(files.BuildPath(files.BuildPath(library, folder), name));
    const auto found = std::find_if(candidates.begin(), candidates.end(),
                                    [&](const String& path) { return paths.FileExists(path); });
    return found == candidates.end() ? name : *found;
}

LoadedModule::LoadedModule(const String& path)
    : module_(kernel::TheKernel().LoadLibraryA(core7::NativePath(path).c_str())) {}

LoadedModule::~LoadedModule() {
    if (module_) kernel::TheKernel().FreeLibrary(module_);
}

Ref<core7::DefineFile> LoadedModule::DefineFile(const String& name) const {
    const ByteArray bytes = gServices.resourceService().ReadResource(module_, "TxtFiles", name);
    Ref<core7::DefineFile> file = gServices.createDefineFile();
    file->LoadText(
        kernel::TextFromAnsi({reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
    return file;
}

}  // namespace vxgui
