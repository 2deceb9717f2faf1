#include "tools/view/window/FactsPanel.h"

#include <QPainter>
#include <QVBoxLayout>

#include "tools/view/window/QtPixels.h"

namespace vxgui::view {
namespace {

constexpr int kSwatch = 22;
constexpr size_t kColours = 9;

QPixmap SwatchesOf(const std::vector<uint32_t>& colours) {
    QPixmap pixmap(static_cast<int>(kColours) * kSwatch, kSwatch);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QColor(0, 0, 0, 70));
    for (size_t i = 0; i < colours.size(); ++i) {
        painter.setBrush(QColor(QRgb(colours[i])));
        painter.drawRect(static_cast<int>(i) * kSwatch, 0, kSwatch - 4, kSwatch - 4);
    }
    return pixmap;
}

QString NamesOf(const std::vector<uint32_t>& colours) {
    QStringList names;
    for (const uint32_t colour : colours) names << QColor(QRgb(colour)).name().toUpper();
    return names.join("\n");
}

}  // namespace

FactsPanel::FactsPanel(QWidget* parent)
    : QGroupBox("Item", parent), rows_(new QFormLayout), colours_(new QLabel) {
    colours_->setObjectName("colours");
    auto* const column = new QVBoxLayout(this);
    column->addLayout(rows_);
    column->addWidget(colours_);
    rows_->setVerticalSpacing(2);
    rows_->setHorizontalSpacing(12);
}

void FactsPanel::Tell(const ShownItem& shown) {
    while (rows_->rowCount() > 0) rows_->removeRow(0);
    if (!shown.item) return;
    for (const Fact& fact : FactsOf(shown)) {
        auto* const value = new QLabel(QtText(fact.value));
        value->setObjectName("fact " + QtText(fact.name));
        value->setWordWrap(true);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        rows_->addRow(NewNameLabel(QtText(fact.name)), value);
    }
    tool::Sheet straight(shown.size.cx, shown.size.cy);
    PaintStraight(straight, {shown.item, {}, shown.size, shown.state});
    const std::vector<uint32_t> colours = MainColours(straight, kColours);
    colours_->setPixmap(SwatchesOf(colours));
    colours_->setToolTip(NamesOf(colours));
}

}  // namespace vxgui::view
