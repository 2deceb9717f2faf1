#include "vxgui/theme/compiled/SkinWriter.h"

#include "vxgui/base/LittleEndian.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/theme/compiled/FieldBag.h"
#include "vxgui/theme/compiled/Fields.h"
#include "vxgui/theme/compiled/PictureBlock.h"

namespace vxgui::compiled {
namespace {

template <class Pool, class T>
void Enter(const Ref<Pool>& pool, Numbering<T>& numbering) {
    for (int32_t n = 1; pool && n <= pool->Count(); ++n) {
        if (pool->Item(n)) numbering.Add(pool->Item(n), pool->KeyOf(n));
    }
}

ByteArray BytesOf(const Palette& palette) {
    ByteArray bytes(palette.All().size() * 4);
    uint8_t* at = bytes.data();
    for (const int32_t colour : palette.All()) {
        StoreLittle(at, static_cast<uint32_t>(colour));
        at += 4;
    }
    return bytes;
}

int32_t SizeOf(const auto& numbering) { return static_cast<int32_t>(numbering.All().size()); }

}  // namespace

int32_t SkinWriter::PictureNumber(const Ref<cAlphaDIBSection>& picture) {
    if (!picture || !picture->hDIB()) return 0;
    const auto known = pictureNumbers_.find(picture.get());
    if (known != pictureNumbers_.end()) return known->second;
    ByteArray block;
    picture->ToByteArray(block, 0);
    if (!IsWholePicture(block))
        throw Error(ErrorNumber::InvalidCall, "CompiledSkin", "a picture isn't whole");
    const auto next = static_cast<int32_t>(pictures_.size() + 1);
    const int32_t number = pictureContents_.emplace(block, next).first->second;
    if (number == next) pictures_.push_back(std::move(block));
    return pictureNumbers_[picture.get()] = number;
}

// A count for each pool that there is: how many of the fonts, of the styles, are in it.
ByteArray SkinWriter::SetBytes(ThemeSet& set) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    Enter(set.Fonts(), fonts_);
    Enter(set.TextStyles(), styles_);
    if (set.Fonts()) bag->WriteProperty("Fonts", SizeOf(fonts_));
    if (set.TextStyles()) bag->WriteProperty("TextStyles", SizeOf(styles_));
    if (!set.ThemeItems()) bag->WriteProperty("NoItems", 1);
    if (!set.Colours().All().empty()) bag->WriteProperty("Colours", BytesOf(set.Colours()));
    return bag->Contents();
}

void SkinWriter::WriteStrips(ole::PropertyBag& bag, const String& name,
                             const std::vector<StripAtScale>& strips) {
    int32_t n = 0;
    for (const auto& [scale, strip] : strips) {
        const String number = String::FromInt(++n);
        bag.WriteProperty(name + "Scale" + number, RoundHalfEven(scale * 1000));
        bag.WriteProperty(name + "Strip" + number, PictureNumber(strip), 0);
    }
}

ByteArray SkinWriter::ItemBytes(const ThemeItem& item, const String& key) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    if (!key.empty()) bag->WriteProperty("Key", key);
    bag->WriteProperty("Image", PictureNumber(item.Image()), 0);
    bag->WriteProperty("Glyph", PictureNumber(item.Glyph()), 0);
    WriteStrips(*bag, "Image", item.ImageStrips());
    WriteStrips(*bag, "Glyph", item.GlyphStrips());
    ItemFields::ForEach(item, FieldWriter(bag));
    for (int32_t state = 0; state < E_ItemStateMax; ++state) {
        const Ref<LFont> font = item.StateFont(state);
        const Ref<TextStyle> style = item.StateTextStyle(state);
        bag->WriteProperty(kStateFonts[state], fonts_.NumberOf(font), 0);
        bag->WriteProperty(kStateStyles[state], styles_.NumberOf(style), 0);
    }
    return bag->Contents();
}

std::vector<ByteArray> SkinWriter::ItemRecords(const ThemeItems& items) {
    std::vector<ByteArray> records;
    for (int32_t n = 1; n <= items.Count(); ++n) {
        if (const Ref<ThemeItem> item = items.Item(n))
            records.push_back(ItemBytes(*item, items.KeyOf(n)));
    }
    return records;
}

std::vector<ByteArray> SkinWriter::FontRecords() {
    std::vector<ByteArray> records;
    for (const auto& [font, key] : fonts_.All()) {
        const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
        if (!key.empty()) bag->WriteProperty("Key", key);
        ForEachFontField(*font, FieldWriter(bag));
        bag->WriteProperty("DrawingStyle", styles_.NumberOf(font->DrawingStyle), 0);
        records.push_back(bag->Contents());
    }
    return records;
}

std::vector<ByteArray> SkinWriter::StyleRecords() const {
    std::vector<ByteArray> records;
    for (const auto& [style, key] : styles_.All()) {
        const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
        if (!key.empty()) bag->WriteProperty("Key", key);
        ForEachStyleField(*style, FieldWriter(bag));
        records.push_back(bag->Contents());
    }
    return records;
}

// Items come before what they refer to, since only then it has all its numbers.
std::vector<Section> SkinWriter::Write(const CompiledSkin& skin) {
    if (!skin.set) throw Error(ErrorNumber::ObjectNotSet, "CompiledSkin", "Object not set");
    std::vector<Section> sections;
    sections.push_back({SectionKind::Set, SetBytes(*skin.set)});
    const Ref<ThemeItems> items = skin.set->ThemeItems();
    ByteArray itemBytes = JoinRecords(items ? ItemRecords(*items) : std::vector<ByteArray>());
    ByteArray fontBytes = JoinRecords(FontRecords());
    sections.push_back({SectionKind::Styles, JoinRecords(StyleRecords())});
    sections.push_back({SectionKind::Fonts, std::move(fontBytes)});
    for (ByteArray& picture : pictures_)
        sections.push_back({SectionKind::Picture, std::move(picture)});
    sections.push_back({SectionKind::Items, std::move(itemBytes)});
    const std::string notes = skin.notes.Utf8();
    if (!notes.empty()) sections.push_back({SectionKind::Notes, {notes.begin(), notes.end()}});
    return sections;
}

}  // namespace vxgui::compiled
