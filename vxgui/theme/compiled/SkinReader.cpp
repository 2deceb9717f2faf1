#include "vxgui/theme/compiled/SkinReader.h"

#include "vxgui/base/LittleEndian.h"
#include "vxgui/theme/StateText.h"
#include "vxgui/theme/compiled/FieldBag.h"
#include "vxgui/theme/compiled/Fields.h"
#include "vxgui/theme/compiled/PictureBlock.h"

namespace vxgui::compiled {
namespace {

// What a number from 1 stands for; none for 0.
template <class T>
const Ref<T>& Numbered(const std::vector<Ref<T>>& objects, int32_t number) {
    static const Ref<T> none;
    if (number == 0) return none;
    if (number < 0 || static_cast<size_t>(number) > objects.size())
        RaiseDamaged("damaged: it refers to what it doesn't hold");
    return objects[static_cast<size_t>(number) - 1];
}

int32_t NumberIn(const FieldReader& read, std::string_view name) {
    int32_t number = 0;
    read(name, number);
    return number;
}

String KeyIn(const FieldReader& read) {
    String key;
    read("Key", key);
    return key;
}

template <class Pool, class T>
void AddToPool(const Ref<Pool>& pool, int32_t inPool, const std::vector<Ref<T>>& objects,
               const String& key) {
    if (pool && objects.size() <= static_cast<size_t>(inPool)) pool->AddItem(objects.back(), key);
}

// What items with the same numbers have in common; none where all are 0.
template <class Collection, class T>
const Ref<Collection>& ListOf(std::map<StateNumbers, Ref<Collection>>& lists,
                              const StateNumbers& numbers, const std::vector<Ref<T>>& objects) {
    const auto [place, isNew] = lists.try_emplace(numbers);
    Ref<Collection>& list = place->second;
    for (size_t state = 0; isNew && state < numbers.size(); ++state) {
        const Ref<T>& object = Numbered(objects, numbers[state]);
        if (object && !list) list = New<Collection>();
        if (object) list->AddItem(object, StateText(static_cast<int32_t>(state)).name());
    }
    return list;
}

template <class Read>
void ForEachRecord(const ByteArray& bytes, Read read) {
    for (const std::span<const uint8_t> record : SplitRecords(bytes)) read(record);
}

}  // namespace

CompiledSkin SkinReader::Read() {
    skin_.set = New<ThemeSet>();
    ByteArray bytes;
    for (size_t i = 0; i < container_.Count(); ++i) {
        container_.Uncompress(i, &bytes);
        ReadSection(container_.KindOf(i), bytes);
    }
    return std::move(skin_);
}

void SkinReader::ReadSection(SectionKind kind, const ByteArray& bytes) {
    if (kind != SectionKind::Picture && !kinds_.insert(kind).second)
        RaiseDamaged("damaged: it has two sections of one kind");
    switch (kind) {
        case SectionKind::Set:
            return ReadSet(bytes);
        case SectionKind::Picture:
            return ReadPicture(bytes);
        case SectionKind::Styles:
            return ForEachRecord(bytes,
                                 [this](std::span<const uint8_t> record) { ReadStyle(record); });
        case SectionKind::Fonts:
            return ForEachRecord(bytes,
                                 [this](std::span<const uint8_t> record) { ReadFont(record); });
        case SectionKind::Items:
            return ForEachRecord(bytes,
                                 [this](std::span<const uint8_t> record) { ReadItem(record); });
        case SectionKind::Notes:
            skin_.notes =
                std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size());
            return;
    }
    RaiseDamaged("damaged: it has a section of an unknown kind");
}

void SkinReader::ReadSet(const ByteArray& bytes) {
    const FieldReader read = Open(bytes);
    if (bag_.Has("Fonts")) skin_.set->Fonts(New<LFonts>());
    if (bag_.Has("TextStyles")) skin_.set->TextStyles(New<TextStyles>());
    if (bag_.Has("NoItems")) skin_.set->ThemeItems(nullptr);
    fontsInPool_ = NumberIn(read, "Fonts");
    stylesInPool_ = NumberIn(read, "TextStyles");
    const Variant colours = bag_.ReadProperty("Colours");
    const auto* stored = colours.As<ByteArray>();
    for (size_t at = 0; stored && at + 4 <= stored->size(); at += 4)
        skin_.set->Colours().Set(static_cast<int32_t>(at / 4),
                                 static_cast<int32_t>(LoadLittle<uint32_t>(&(*stored)[at])));
}

FieldReader SkinReader::Open(std::span<const uint8_t> record) {
    bag_.Open(record);
    return FieldReader(bag_);
}

void SkinReader::ReadPicture(const ByteArray& bytes) {
    const Ref<cAlphaDIBSection> picture = New<cAlphaDIBSection>();
    if (!IsWholePicture(bytes) || !picture->FromByteArray(bytes))
        RaiseDamaged("damaged: a picture in it can't be read");
    pictures_.push_back(picture);
}

void SkinReader::ReadStyle(std::span<const uint8_t> record) {
    const FieldReader read = Open(record);
    const Ref<TextStyle> style = New<TextStyle>();
    ForEachStyleField(*style, read);
    styles_.push_back(style);
    AddToPool(skin_.set->TextStyles(), stylesInPool_, styles_, KeyIn(read));
}

void SkinReader::ReadFont(std::span<const uint8_t> record) {
    const FieldReader read = Open(record);
    const Ref<LFont> font = New<LFont>();
    ForEachFontField(*font, read);
    font->DrawingStyle = Numbered(styles_, NumberIn(read, "DrawingStyle"));
    fonts_.push_back(font);
    AddToPool(skin_.set->Fonts(), fontsInPool_, fonts_, KeyIn(read));
}

// Calls `add(scale, strip)` for each strip that is supplied for a scale.
template <class Add>
void SkinReader::ReadStrips(const FieldReader& read, const std::string& name, Add add) const {
    for (int32_t n = 1;; ++n) {
        const std::string number = std::to_string(n);
        const int32_t thousandths = NumberIn(read, name + "Scale" + number);
        if (thousandths == 0) return;
        const auto& strip = Numbered(pictures_, NumberIn(read, name + "Strip" + number));
        if (strip) add(thousandths / 1000.0, strip);
    }
}

void SkinReader::ReadItem(std::span<const uint8_t> record) {
    const FieldReader read = Open(record);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(Numbered(pictures_, NumberIn(read, "Image")));
    item->Glyph(Numbered(pictures_, NumberIn(read, "Glyph")));
    ReadStrips(read, "Image", [&](auto... strip) { item->AddImageStrip(strip...); });
    ReadStrips(read, "Glyph", [&](auto... strip) { item->AddGlyphStrip(strip...); });
    ItemFields::ForEach(*item, read);
    StateNumbers fonts{}, styles{};
    for (size_t state = 0; state < fonts.size(); ++state) {
        read(kStateFonts[state], fonts[state]);
        read(kStateStyles[state], styles[state]);
    }
    item->ShareStates(ListOf(fontLists_, fonts, fonts_), ListOf(styleLists_, styles, styles_));
    skin_.set->Item(KeyIn(read), item);
}

}  // namespace vxgui::compiled
