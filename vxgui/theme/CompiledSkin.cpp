#include "vxgui/theme/CompiledSkin.h"

#include "vxgui/theme/compiled/Container.h"
#include "vxgui/theme/compiled/SkinReader.h"
#include "vxgui/theme/compiled/SkinWriter.h"

namespace vxgui {
namespace {

const char* const kSource = "CompiledSkin";

// A file's own bound: more would be refused for its sections anyway.
constexpr size_t kMostFileBytes = size_t{128} << 20;

// Calls `work` and gives the errors that it raises the path as their source.
template <class Work>
auto WithPath(const String& path, Work work) {
    try {
        return work();
    } catch (const Error& error) {
        throw Error(error.Number(), path, error.Description());
    }
}

String Reason() { return core7::CreateSystemInformation()->ErrorText(kernel::GetLastError()); }

}  // namespace

bool IsCompiledSkin(const ByteArray& file) { return compiled::IsContainer(file); }

bool IsCompiledSkinFile(const String& path) {
    ByteArray file;
    return core7::ReadWholeFile(path, &file, kMostFileBytes) && IsCompiledSkin(file);
}

CompiledSkin CompiledSkinFrom(const ByteArray& file) try {
    return compiled::SkinReader(compiled::Container(file)).Read();
} catch (const Error& error) {
    if (error.Source() == String(kSource)) throw;
    compiled::RaiseDamaged("damaged: " + error.Description());
}

ByteArray BytesOfCompiledSkin(const CompiledSkin& skin) {
    return compiled::WriteContainer(compiled::SkinWriter().Write(skin));
}

CompiledSkin LoadCompiledSkin(const String& path) {
    return WithPath(path, [&] {
        ByteArray file;
        if (!core7::ReadWholeFile(path, &file, kMostFileBytes))
            throw Error(ErrorNumber::FileNotFound, kSource, Reason());
        return CompiledSkinFrom(file);
    });
}

void SaveCompiledSkin(const CompiledSkin& skin, const String& path) {
    WithPath(path, [&] {
        const ByteArray file = BytesOfCompiledSkin(skin);
        if (!core7::WriteWholeFile(path, file.data(), file.size()))
            throw Error(ErrorNumber::PathNotFound, kSource, Reason());
    });
}

}  // namespace vxgui
