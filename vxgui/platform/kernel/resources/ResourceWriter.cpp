#include "vxgui/platform/kernel/resources/ResourceWriter.h"

#include <algorithm>
#include <map>

#include "vxgui/base/Error.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/kernel/resources/PeFormat.h"

namespace vxgui::kernel {
namespace {

constexpr const char* kSource = "WriteResourceModule";
/// Resources lie within the 2 GiB that an offset without its high bit reaches.
constexpr size_t kLargestSection = size_t{1} << 30;

// A name as directories sort it: texts in the order of their units, then numbers.
struct Key {
    bool isNumber = false;
    uint16_t number = 0;
    std::u16string text;
    friend auto operator<=>(const Key&, const Key&) = default;
};

// Loaders make a name upper-case before they look for it, so it must be stored so.
std::u16string Upper(const String& name) {
    std::u16string upper = name.units();
    for (char16_t& unit : upper) {
        if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - u'a' + u'A');
    }
    return upper;
}

bool IsNumber(const String& name) {
    const auto digits = name.Mid(1).units();
    return name.size() > 1 && name.size() <= 6 && name[0] == u'#' &&
           digits.find_first_not_of(u"0123456789") == digits.npos;
}

Key KeyOf(const String& name) {
    if (name.empty() || name.size() > 260)
        throw Error(ErrorNumber::InvalidCall, kSource, "Not a resource name: \"" + name + "\"");
    if (!IsNumber(name)) return {false, 0, Upper(name)};
    const int number = std::stoi(name.Mid(1).Utf8());
    if (number > 0xFFFF)
        throw Error(ErrorNumber::InvalidCall, kSource, "Not a resource number: " + name);
    return {true, static_cast<uint16_t>(number), {}};
}

using Names = std::map<Key, ResourceBlock>;
using Types = std::map<Key, Names>;

Types Sorted(const std::vector<ModuleResource>& resources) {
    Types types;
    for (const ModuleResource& resource : resources) {
        if (!types[KeyOf(resource.type)].emplace(KeyOf(resource.name), resource.block).second) {
            throw Error(ErrorNumber::DuplicateKey, kSource,
                        "Twice the resource " + resource.type + " " + resource.name);
        }
    }
    return types;
}

// Writes directories first in, first out, so that each knows where the next one will stand.
class SectionWriter {
public:
    SectionWriter(const Types& types, uint32_t address) : types_(types), address_(address) {}

    ByteArray Write() {
        MeasureDirectories();
        WriteTypes();
        for (const auto& [type, names] : types_) WriteNames(names);
        for (size_t i = 0; i < count_; ++i) WriteLanguage(i);
        for (const auto& [type, names] : types_) {
            for (const auto& [name, block] : names) WriteData(block);
        }
        return std::move(bytes_);
    }

private:
    static uint32_t TableSize(size_t entries) {
        return static_cast<uint32_t>(pe::kTableSize + entries * pe::kEntrySize);
    }

    void MeasureDirectories() {
        nextNames_ = TableSize(types_.size());
        nextLanguage_ = nextNames_;
        for (const auto& [type, names] : types_) {
            nextLanguage_ += TableSize(names.size());
            count_ += names.size();
        }
        dataEntries_ = nextLanguage_ + static_cast<uint32_t>(count_) * TableSize(1);
        bytes_.resize(dataEntries_ + count_ * pe::kDataEntrySize);
    }

    void Word(size_t at, size_t value) { StoreLittle(&bytes_[at], static_cast<uint16_t>(value)); }
    void Dword(size_t at, size_t value) { StoreLittle(&bytes_[at], static_cast<uint32_t>(value)); }

    template <class Map>
    void BeginTable(const Map& map) {
        const auto named = std::count_if(map.begin(), map.end(),
                                         [](const auto& entry) { return !entry.first.isNumber; });
        if (map.size() > 0xFFFF) throw Error(ErrorNumber::InvalidCall, kSource, "Too many names");
        Word(at_ + pe::kNamedCount, static_cast<size_t>(named));
        Word(at_ + pe::kNumberCount, map.size() - static_cast<size_t>(named));
        at_ += pe::kTableSize;
    }

    void WriteEntry(size_t name, size_t target) {
        Dword(at_, name);
        Dword(at_ + 4, target);
        at_ += pe::kEntrySize;
    }

    void WriteTypes() {
        BeginTable(types_);
        for (const auto& [type, names] : types_) {
            WriteEntry(NameOf(type), nextNames_ | pe::kHighBit);
            nextNames_ += TableSize(names.size());
        }
    }

    void WriteNames(const Names& names) {
        BeginTable(names);
        for (const auto& [name, block] : names) {
            WriteEntry(NameOf(name), nextLanguage_ | pe::kHighBit);
            nextLanguage_ += TableSize(1);
        }
    }

    // One entry, of the neutral language, which has the number 0.
    void WriteLanguage(size_t index) {
        Word(at_ + pe::kNumberCount, 1);
        at_ += pe::kTableSize;
        WriteEntry(0, dataEntries_ + index * pe::kDataEntrySize);
    }

    void WriteData(const ResourceBlock& block) {
        bytes_.resize((bytes_.size() + 7) / 8 * 8);
        if (block.size > kLargestSection - std::min(bytes_.size(), kLargestSection))
            throw Error(ErrorNumber::InvalidCall, kSource, "More than 1 GiB of resources");
        Dword(at_, address_ + bytes_.size());
        Dword(at_ + 4, block.size);
        at_ += pe::kDataEntrySize;
        bytes_.insert(bytes_.end(), block.data, block.data + block.size);
    }

    // A number, or the place of a text that is added behind what is there.
    size_t NameOf(const Key& key) {
        if (key.isNumber) return key.number;
        const size_t start = bytes_.size();
        bytes_.resize(start + 2 + 2 * key.text.size());
        Word(start, key.text.size());
        for (size_t i = 0; i < key.text.size(); ++i) Word(start + 2 + 2 * i, key.text[i]);
        return start | pe::kHighBit;
    }

    const Types& types_;
    const uint32_t address_;
    ByteArray bytes_;
    size_t at_ = 0;
    size_t count_ = 0;
    uint32_t nextNames_ = 0, nextLanguage_ = 0, dataEntries_ = 0;
};

}  // namespace

ByteArray ResourceSection(const std::vector<ModuleResource>& resources, uint32_t address) {
    const Types types = Sorted(resources);
    return SectionWriter(types, address).Write();
}

}  // namespace vxgui::kernel
