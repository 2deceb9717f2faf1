#pragma once

#include <map>

#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/compiled/Container.h"

namespace vxgui::compiled {

/// Objects in the order in which they are first met; their numbers count from 1.
template <class T>
class Numbering {
public:
    struct Entry {
        Ref<T> object;
        String key;
    };

    /// A new number, also for an object that has one already.
    int32_t Add(const Ref<T>& object, const String& key = {}) {
        entries_.push_back({object, key});
        const auto number = static_cast<int32_t>(entries_.size());
        numbers_.emplace(object.get(), number);
        return number;
    }
    /// 0 for none.
    int32_t NumberOf(const Ref<T>& object) {
        if (!object) return 0;
        const auto known = numbers_.find(object.get());
        return known == numbers_.end() ? Add(object) : known->second;
    }
    const std::vector<Entry>& All() const { return entries_; }

private:
    std::vector<Entry> entries_;
    std::map<const T*, int32_t> numbers_;
};

/// Turns a theme set into the sections of a compiled skin.
class VXGUI_LOCAL SkinWriter {
public:
    std::vector<Section> Write(const CompiledSkin& skin);

private:
    int32_t PictureNumber(const Ref<cAlphaDIBSection>& picture);
    void WriteStrips(ole::PropertyBag& bag, const String& name,
                     const std::vector<StripAtScale>& strips);
    ByteArray SetBytes(ThemeSet& set);
    ByteArray ItemBytes(const ThemeItem& item, const String& key);
    std::vector<ByteArray> ItemRecords(const ThemeItems& items);
    std::vector<ByteArray> FontRecords();
    std::vector<ByteArray> StyleRecords() const;

    Numbering<LFont> fonts_;
    Numbering<TextStyle> styles_;
    std::vector<ByteArray> pictures_;
    std::map<const cAlphaDIBSection*, int32_t> pictureNumbers_;
    std::map<ByteArray, int32_t> pictureContents_;
};

}  // namespace vxgui::compiled
