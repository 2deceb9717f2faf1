#include "tools/view/window/ItemList.h"

#include <QPainter>
#include <QSignalBlocker>

#include "tools/view/ItemFacts.h"
#include "tools/view/window/QtPixels.h"
#include "vxgui/theme/ItemLook.h"

namespace vxgui::view {
namespace {

constexpr QSize kThumbnail(72, 40);
constexpr int32_t kLargestSide = 512;  // a wallpaper needs no more for its thumbnail
constexpr int kSection = Qt::UserRole;

gdi::SIZE PaintedSize(const gdi::SIZE& own) {
    return {std::min(own.cx, kLargestSide), std::min(own.cy, kLargestSide)};
}

QPixmap ThumbnailOf(const SkinItem& item) {
    const gdi::SIZE size = PaintedSize(OwnSize(*item.item));
    tool::Sheet sheet(size.cx, size.cy);
    // Some items have nothing to show before the mouse comes.
    for (const int32_t state : {E_ItemStateNormal, E_ItemStateMouseOver, E_ItemStatePressed}) {
        PaintStraight(sheet, {item.item, {}, size, state});
        if (!MainColours(sheet, 1).empty()) break;
    }
    QImage image = StraightImageOf(sheet);
    if (image.width() > kThumbnail.width() || image.height() > kThumbnail.height())
        image = image.scaled(kThumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap pixmap(kThumbnail);
    pixmap.fill(QColor(0xE4, 0xE8, 0xEE));
    QPainter(&pixmap).drawImage((kThumbnail.width() - image.width()) / 2,
                                (kThumbnail.height() - image.height()) / 2, image);
    return pixmap;
}

// The chosen one too keeps its colours.
QIcon IconOf(const SkinItem& item) {
    const QPixmap thumbnail = ThumbnailOf(item);
    QIcon icon(thumbnail);
    icon.addPixmap(thumbnail, QIcon::Selected);
    return icon;
}

}  // namespace

ItemList::ItemList(QWidget* parent) : QListWidget(parent) {
    setObjectName("items");
    setIconSize(kThumbnail);
    setUniformItemSizes(true);
    setSpacing(1);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // long names end in dots
}

void ItemList::Fill(const Skin& skin) {
    const QString section = currentItem() ? currentItem()->data(kSection).toString() : QString();
    const QSignalBlocker silent(this);
    clear();
    for (const SkinItem& each : skin.items) {
        auto* const row = new QListWidgetItem(IconOf(each), QtText(each.name), this);
        row->setData(kSection, QtText(each.section));
        row->setToolTip("[" + QtText(each.section) + "]");
    }
    if (!Choose(section)) setCurrentRow(0);
}

void ItemList::Filter(const QString& text) {
    for (int row = 0; row < count(); ++row)
        item(row)->setHidden(!item(row)->text().contains(text, Qt::CaseInsensitive));
}

bool ItemList::Choose(const QString& name) {
    for (int row = 0; row < count(); ++row) {
        const bool same =
            item(row)->data(kSection).toString().compare(name, Qt::CaseInsensitive) == 0 ||
            item(row)->text().compare(name, Qt::CaseInsensitive) == 0;
        if (!same) continue;
        setCurrentRow(row);
        return true;
    }
    return false;
}

}  // namespace vxgui::view
