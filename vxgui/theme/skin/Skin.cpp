#include "vxgui/theme/skin/Skin.h"

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/StyleModule.h"
#include "vxgui/theme/skin/SkinDialects.h"
#include "vxgui/theme/skin/SkinReport.h"

namespace vxgui {
namespace {

void Open(core7::DefineFile& file, const String& path) {
    if (!core7::ThePathService().PathExists(path)) {
        RefuseSkin(path,
                   "is not there; the define file of a theme set, a compiled skin, the UIS file of "
                   "a skin or res:MODULE:STYLE was expected");
    }
    SkinReport report;
    const bool opened = file.OpenFile(path);
    report.AddProblems(file);
    if (!opened && file.Problems().empty()) report.Add(path, {}, "can't be read");
    report.ThrowIfAny();
}

[[noreturn]] void RefuseDialect(const String& path) {
    SkinReport report;
    report.Add(path, {1, 1},
               "no section [ThemeSet]; a theme set begins with one that has the key Themes, and a "
               "skin in the UIS dialect has [XPTaskbar], [Personality] or [Colour0]");
    report.Throw();
}

// Its notes stand in for the define file.
Skin ReadCompiled(const ByteArray& bytes, const String& path) try {
    const CompiledSkin compiled = CompiledSkinFrom(bytes);
    Skin skin{path, {}, core7::CreateDefineFile(), compiled.set, nullptr};
    skin.file->LoadText(compiled.notes);
    const Ref<ThemeItems> items = compiled.set->ThemeItems();
    for (int32_t n = 1; items && n <= items->Count(); ++n) {
        const String section = items->KeyOf(n);
        skin.items.push_back({section, skin.file->GetString(section, "Name", section),
                              skin.file->GetString(section, "Caption", ""), items->Item(n)});
    }
    return skin;
} catch (const Error& error) {
    RefuseSkin(path, error.Description());
}

}  // namespace

Skin SkinOfCompiled(const ByteArray& bytes, const String& path) {
    return WithinMemory("SkinOfCompiled", [&] { return ReadCompiled(bytes, path); });
}

Skin LoadSkin(const String& path) try {
    ByteArray bytes;
    if (core7::ReadWholeFile(path, &bytes) && IsCompiledSkin(bytes))
        return SkinOfCompiled(bytes, path);
    Skin skin{path, {}, nullptr, nullptr, nullptr};
    if (IsStyleReference(path)) {
        LoadStyle(skin);
        return skin;
    }
    skin.file = core7::CreateDefineFile();
    Open(*skin.file, path);
    if (IsThemeSet(*skin.file)) {
        LoadThemeSet(skin);
    } else if (IsUisSkin(*skin.file)) {
        LoadUisSkin(skin);
    } else {
        RefuseDialect(path);
    }
    return skin;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LoadSkin");
}

Ref<ThemeItem> FindItem(const Skin& skin, const String& name) {
    String known;
    for (const SkinItem& item : skin.items) {
        if (item.section.EqualsNoCase(name) || item.name.EqualsNoCase(name)) return item.item;
        known += (known.empty() ? String() : String(", ")) + item.name;
    }
    RefuseSkin(skin.path, "no item \"" + name + "\"; the items are " + known);
}

}  // namespace vxgui
