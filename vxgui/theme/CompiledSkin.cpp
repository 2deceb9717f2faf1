#include "vxgui/theme/CompiledSkin.h"

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/limits.h"
#include "vxgui/theme/compiled/Container.h"
#include "vxgui/theme/compiled/SkinReader.h"
#include "vxgui/theme/compiled/SkinWriter.h"

namespace vxgui {
namespace {

const char* const kSource = "CompiledSkin";

// Calls `work` and gives the errors that it raises the path as their source.
template <class Work>
auto WithPath(const String& path, Work work) {
    try {
        return work();
    } catch (const Error& error) {
        throw Error(error.Number(), path, error.Description());
    }
}

// What is wrong with a part is wrong with the whole; running out of memory is no damage.
CompiledSkin ReadSkin(const ByteArray& file) try {
    return compiled::SkinReader(compiled::Container(file)).Read();
} catch (const Error& error) {
    const bool damaged = error.Number() != static_cast<int32_t>(ErrorNumber::OutOfMemory);
    if (!damaged || error.Source() == String(kSource)) throw;
    compiled::RaiseDamaged("damaged: " + error.Description());
}

String Reason() { return core7::CreateSystemInformation()->ErrorText(kernel::GetLastError()); }

}  // namespace

bool IsCompiledSkin(const ByteArray& file) { return compiled::IsContainer(file); }

bool IsCompiledSkinFile(const String& path) {
    ByteArray file;
    return core7::ReadWholeFile(path, &file, ApartmentLimits().skinFileBytes) &&
           IsCompiledSkin(file);
}

CompiledSkin CompiledSkinFrom(const ByteArray& file) {
    return WithinMemory(kSource, [&] { return ReadSkin(file); });
}

CompiledSkin CompiledSkinFrom(const ByteArray& file, const String& path) {
    return WithPath(path, [&] { return CompiledSkinFrom(file); });
}

ByteArray BytesOfCompiledSkin(const CompiledSkin& skin) try {
    return compiled::WriteContainer(compiled::SkinWriter().Write(skin));
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory(kSource);
}

CompiledSkin LoadCompiledSkin(const String& path) try {
    ByteArray file;
    if (!core7::ReadWholeFile(path, &file, ApartmentLimits().skinFileBytes))
        throw Error(ErrorNumber::FileNotFound, path, Reason());
    return CompiledSkinFrom(file, path);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory(kSource);
}

void SaveCompiledSkin(const CompiledSkin& skin, const String& path) try {
    const ByteArray file = WithPath(path, [&] { return BytesOfCompiledSkin(skin); });
    if (!core7::WriteWholeFile(path, file.data(), file.size()))
        throw Error(ErrorNumber::PathNotFound, path, Reason());
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory(kSource);
}

}  // namespace vxgui
