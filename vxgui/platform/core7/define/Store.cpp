#include "vxgui/platform/core7/define/Store.h"

namespace vxgui::core7 {
namespace {

template <class Named>
size_t PlaceIn(const NameIndex& index, const std::vector<Named>& all, const String& name) {
    return index.Find(name.view(), [&](size_t at) { return all[at].name.view(); });
}

template <class Named>
const Named* FindIn(const NameIndex& index, const std::vector<Named>& all, const String& name) {
    const size_t place = PlaceIn(index, all, name);
    return place == NameIndex::kNone ? nullptr : &all[place];
}

}  // namespace

void DefineStore::Enter(const String& name, DefinePosition position) {
    current_ = PlaceIn(places_, sections_, name);
    if (current_ == NameIndex::kNone) {
        current_ = sections_.size();
        sections_.push_back({name, position, {}, {}});
        places_.Add(name.view(), current_);
    }
    if (sections_[current_].position.line == 0) sections_[current_].position = position;
}

const DefineStore::Entry* DefineStore::Add(Entry entry) {
    if (sections_.empty()) Enter({}, {});
    Section& section = sections_[current_];
    if (const Entry* first = FindIn(section.places, section.entries, entry.name)) return first;
    section.entries.push_back(std::move(entry));
    section.places.Add(section.entries.back().name.view(), section.entries.size() - 1);
    return nullptr;
}

const DefineStore::Section* DefineStore::Find(const String& section) const {
    return FindIn(places_, sections_, section);
}

const DefineStore::Entry* DefineStore::Find(const String& section, const String& key) const {
    const Section* found = Find(section);
    return found ? FindIn(found->places, found->entries, key) : nullptr;
}

}  // namespace vxgui::core7
