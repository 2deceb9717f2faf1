#include "vxgui/theme/ThemeSetFile.h"

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/limits.h"
#include "vxgui/theme/CompiledSkin.h"

namespace vxgui {
namespace {

String PlaceOf(const String& path, int32_t line, int32_t column) {
    return line > 0 ? path + ":" + String::FromInt(line) + ":" + String::FromInt(column) : path;
}

void RaiseFirst(const core7::DefineFile& file, const String& path) {
    for (const core7::DefineProblem& problem : file.Problems()) {
        throw Error(ErrorNumber::FileNotFound, PlaceOf(path, problem.line, problem.column),
                    problem.text);
    }
}

// The item that was being read is the one after the last that was added.
core7::DefinePosition LastPlace(const core7::DefineFile& file, const ThemeSet& set) {
    return file.PositionOf(NumberedSection("Theme_", set.ThemeItems()->Count() + 1));
}

// The set of a compiled skin, which is read once; none for any other file.
Ref<ThemeSet> CompiledSetOf(const String& path) {
    ByteArray file;
    const bool there = core7::ReadWholeFile(path, &file, ApartmentLimits().skinFileBytes);
    return there && IsCompiledSkin(file) ? CompiledSkinFrom(file, path).set : nullptr;
}

}  // namespace

Ref<ThemeSet> LoadThemeSetFile(const String& path) try {
    if (const Ref<ThemeSet> compiled = CompiledSetOf(path)) return compiled;
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    const bool opened = file->OpenFile(path);
    RaiseFirst(*file, path);
    if (!opened) throw Error(ErrorNumber::FileNotFound, path, "can't be read");
    Ref<ThemeSet> set = New<ThemeSet>();
    try {
        ThemeSetFromDefine(set, file,
                           core7::ThePathService().TheFileSystem().GetParentFolderName(path));
    } catch (const Error& error) {
        const core7::DefinePosition at = LastPlace(*file, *set);
        throw Error(error.Number(), PlaceOf(path, at.line, at.column), error.Description());
    }
    return set;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LoadThemeSetFile");
}

}  // namespace vxgui
