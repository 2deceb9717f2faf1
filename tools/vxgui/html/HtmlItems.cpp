#include "tools/vxgui/html/HtmlItems.h"

#include "tools/vxgui/GalleryLayout.h"
#include "tools/vxgui/TransparentSheet.h"
#include "tools/vxgui/html/DataUri.h"
#include "tools/vxgui/html/ItemFacts.h"
#include "vxgui/theme/ItemLook.h"
#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/skin/ScaledSkin.h"

namespace vxgui::tool {
namespace {

using kainjow::mustache::data;

constexpr const char* kSizeNames[] = {"Own size", "Wider", "Larger"};

std::string Decimal(int32_t number) { return std::to_string(number); }

/// One item, and how it is painted.
struct Subject {
    const SkinItem& plain;
    ThemeItem& scaled;
};

// Painted as the host would at that scale.
std::string PictureOf(const Subject& subject, gdi::SIZE size, bool captioned) {
    ThemeItem& item = subject.scaled;
    Sheet sheet(std::max(ScaledLength(size.cx, item.Scale()), 1),
                std::max(ScaledLength(size.cy, item.Scale()), 1));
    PaintTransparent(sheet, [&](Sheet& ground) {
        int32_t right = ground.width(), bottom = ground.height();
        item.DrawBackground(ground.dc(), 0, 0, right, bottom, -1, -1);
        if (captioned)
            item.DrawText(ground.dc(), subject.plain.caption, DT_SINGLELINE, -1, 0, 0, right,
                          bottom);
    });
    return DataUri(sheet);
}

data CellOf(const Subject& subject, int32_t state, gdi::SIZE size, bool captioned) {
    data cell;
    cell.set("state", ThemeItem::StateName(state).Utf8());
    cell.set("item", subject.plain.name.Utf8());
    subject.scaled.State(state);
    const bool shows = ShowsInState(*subject.plain.item, state);
    cell.set("src", shows ? data(PictureOf(subject, size, captioned)) : data(false));
    return cell;
}

data SizeOf(const Subject& subject, size_t index, gdi::SIZE size) {
    data shown, cells(data::type::list);
    const bool captioned = index > 0 && !subject.plain.caption.empty();
    for (int32_t state = 0; state < E_ItemStateMax; ++state)
        cells << CellOf(subject, state, size, captioned);
    shown.set("what", kSizeNames[index]);
    shown.set("width", Decimal(size.cx));
    shown.set("height", Decimal(size.cy));
    shown.set("cells", cells);
    return shown;
}

data SizesOf(const Subject& subject) {
    data list(data::type::list);
    size_t index = 0;
    for (const gdi::SIZE& size : GallerySizes(*subject.plain.item, !subject.plain.caption.empty()))
        list << SizeOf(subject, index++, size);
    return list;
}

void SetMargins(data& entry, const ThemeItem& item) {
    entry.set("left", Decimal(item.ImageMarginLeft()));
    entry.set("top", Decimal(item.ImageMarginTop()));
    entry.set("right", Decimal(item.ImageMarginRight()));
    entry.set("bottom", Decimal(item.ImageMarginBottom()));
    entry.set("contentLeft", Decimal(item.ContentLeft()));
    entry.set("contentTop", Decimal(item.ContentTop()));
    entry.set("contentRight", Decimal(item.ContentRight()));
    entry.set("contentBottom", Decimal(item.ContentBottom()));
}

data EntryOf(const Subject& subject, size_t number) {
    const SkinItem& item = subject.plain;
    data entry, facts(data::type::list);
    std::string words = item.name.Utf8() + " " + item.section.Utf8();
    for (const ItemFact& fact : FactsOf(*item.item)) {
        data line;
        line.set("term", fact.term);
        line.set("value", fact.value);
        facts << line;
        words += " " + fact.term + " " + fact.value;
    }
    entry.set("id", "item-" + std::to_string(number));
    entry.set("name", item.name.Utf8());
    entry.set("section", item.name == item.section ? data(false) : data(item.section.Utf8()));
    entry.set("image", data(item.item->Image() != nullptr));
    entry.set("words", words);
    entry.set("facts", facts);
    entry.set("sizes", SizesOf(subject));
    SetMargins(entry, *item.item);
    return entry;
}

}  // namespace

data HtmlItems(const Skin& skin, double scale) {
    const Skin scaled = ScaledSkin(skin, scale);
    data items(data::type::list);
    for (size_t i = 0; i < skin.items.size(); ++i)
        items << EntryOf({skin.items[i], *scaled.items[i].item}, i + 1);
    return items;
}

}  // namespace vxgui::tool
