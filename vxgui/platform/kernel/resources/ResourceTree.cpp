#include "vxgui/platform/kernel/resources/ResourceTree.h"

#include "vxgui/base/CaseFolding.h"
#include "vxgui/platform/kernel/ResourceFile.h"
#include "vxgui/platform/kernel/resources/PeFormat.h"
#include "vxgui/platform/limits.h"

namespace vxgui::kernel {
namespace {

constexpr size_t kLongestName = 260;

bool IsText(uint32_t name) { return (name & pe::kHighBit) != 0; }
uint32_t OffsetOf(uint32_t value) { return value & ~pe::kHighBit; }

}  // namespace

void ResourceTree::ForEach(uint32_t directory, const std::function<bool(Entry)>& use) const {
    if (!root_.Has(directory, pe::kTableSize)) return;
    const uint32_t count = std::min<uint32_t>(
        ApartmentLimits().moduleResources,
        root_.Word(directory + pe::kNamedCount) + root_.Word(directory + pe::kNumberCount));
    uint64_t at = uint64_t{directory} + pe::kTableSize;
    for (uint32_t i = 0; i < count && root_.Has(at, pe::kEntrySize); ++i, at += pe::kEntrySize) {
        if (use({root_.Dword(at), root_.Dword(at + 4)})) return;
    }
}

size_t ResourceTree::LengthOf(Entry entry) const { return root_.Word(OffsetOf(entry.name)); }

String ResourceTree::NameOf(Entry entry) const {
    if (!IsText(entry.name)) return "#" + String::FromInt(entry.name);
    const uint64_t start = uint64_t{OffsetOf(entry.name)} + 2;
    const size_t length = LengthOf(entry);
    if (length > kLongestName || !root_.Has(start, 2 * length)) return {};
    std::u16string units(length, u'\0');
    for (size_t i = 0; i < length; ++i) units[i] = root_.Word(start + 2 * i);
    return units;
}

// A directory may have thousands of names: none is copied.
bool ResourceTree::IsNamed(Entry entry, const String& name) const {
    if (!IsText(entry.name)) return name.view().starts_with(u'#') && NameOf(entry) == name;
    const uint64_t start = uint64_t{OffsetOf(entry.name)} + 2;
    const size_t length = name.size();
    if (LengthOf(entry) != length || length > kLongestName || !root_.Has(start, 2 * length))
        return false;
    for (size_t i = 0; i < length; ++i) {
        const char16_t unit = root_.Word(start + 2 * i), wanted = name.view()[i];
        if (unit != wanted && FoldUnit(unit) != FoldUnit(wanted)) return false;
    }
    return true;
}

uint32_t ResourceTree::Below(Entry entry) const {
    return entry.target & pe::kHighBit ? OffsetOf(entry.target) : 0;
}

uint32_t ResourceTree::Below(uint32_t directory, const String& name) const {
    uint32_t below = 0;
    ForEach(directory, [&](Entry entry) {
        if (!IsNamed(entry, name)) return false;
        below = Below(entry);
        return true;
    });
    return below;
}

ResourceBlock ResourceTree::DataOf(Entry entry) const {
    if (entry.target & pe::kHighBit || !root_.Has(entry.target, pe::kDataEntrySize)) return {};
    const uint32_t size = root_.Dword(entry.target + 4);
    const ByteSpan data = sections_.At(root_.Dword(entry.target));
    return data.Has(0, size) ? ResourceBlock{data.data(), size} : ResourceBlock();
}

ResourceBlock ResourceTree::FirstLanguage(uint32_t directory) const {
    ResourceBlock block;
    if (directory == 0) return block;
    ForEach(directory, [&](Entry entry) {
        block = DataOf(entry);
        return true;
    });
    return block;
}

ResourceBlock ResourceTree::Find(const String& type, const String& name) const {
    if (type.empty() || name.empty()) return {};
    const uint32_t names = Below(0, type);
    return names == 0 ? ResourceBlock() : FirstLanguage(Below(names, name));
}

std::vector<ModuleResource> ResourceTree::All() const {
    std::vector<ModuleResource> found;
    // Directories of a hostile file may share their entries: the sum is bounded, not each.
    uint32_t left = ApartmentLimits().moduleResources;
    ForEach(0, [&](Entry type) {
        const uint32_t names = Below(type);
        if (names == 0) return false;
        const String typeName = NameOf(type);
        ForEach(names, [&](Entry name) {
            if (left == 0) return true;
            --left;
            const ResourceBlock block = FirstLanguage(Below(name));
            if (block.data) found.push_back({typeName, NameOf(name), block});
            return false;
        });
        return left == 0;
    });
    std::erase_if(found, [](const ModuleResource& resource) {
        return resource.type.empty() || resource.name.empty();
    });
    return found;
}

ResourceBlock FindModuleResource(HMODULE module, const String& type, const String& name) {
    const ResourceBlock file = ModuleFileBytes(module);
    return ResourceTree(ByteSpan(file.data, file.size)).Find(type, name);
}

std::vector<ModuleResource> ModuleResources(HMODULE module) {
    return ResourcesOfFile(ModuleFileBytes(module));
}

std::vector<ModuleResource> ResourcesOfFile(ResourceBlock file) {
    return ResourceTree(ByteSpan(file.data, file.size)).All();
}

}  // namespace vxgui::kernel
