#include "vxgui/theme/StyleModule.h"

#include "vxgui/base/Error.h"
#include "vxgui/frame/Services.h"

namespace vxgui {
namespace {

constexpr std::u16string_view kPrefix = u"res:";
const char* const kDefaultModule = "DefaultStyles.dll";
const char* const kDefaultStyle = "blue";
const char* const kSchemedStyle = "Luna.msstyles";
constexpr size_t kSchemedStyleLength = 13;

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
    const String program = kernel::TheKernel().GetProgramFileName();
    for (const String& folder : {skinPath, files.GetParentFolderName(program)}) {
        const String path = files.BuildPath(folder, name);
        if (paths.FileExists(path)) return path;
    }
    return name;
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
