#include "vxgui/platform/core7/define/Store.h"

namespace vxgui::core7 {

void DefineStore::Enter(const String& name, DefinePosition position) {
    const auto [place, isNew] = places_.try_emplace(name.Lower(), sections_.size());
    current_ = place->second;
    if (isNew) sections_.push_back({name, position, {}, {}});
    if (sections_[current_].position.line == 0) sections_[current_].position = position;
}

const DefineStore::Entry* DefineStore::Add(Entry entry) {
    if (sections_.empty()) Enter({}, {});
    Section& section = sections_[current_];
    const auto [place, isNew] =
        section.places.try_emplace(entry.name.Lower(), section.entries.size());
    if (!isNew) return &section.entries[place->second];
    section.entries.push_back(std::move(entry));
    return nullptr;
}

const DefineStore::Section* DefineStore::Find(const String& section) const {
    const auto place = places_.find(section.Lower());
    return place == places_.end() ? nullptr : &sections_[place->second];
}

const DefineStore::Entry* DefineStore::Find(const String& section, const String& key) const {
    const Section* found = Find(section);
    if (!found) return nullptr;
    const auto place = found->places.find(key.Lower());
    return place == found->places.end() ? nullptr : &found->entries[place->second];
}

}  // namespace vxgui::core7
