#include "tools/view/window/SizePanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include "tools/view/StageLayout.h"

namespace vxgui::view {
namespace {

QSpinBox* NewSide(const char* name) {
    auto* const side = new QSpinBox;
    side->setObjectName(name);
    side->setRange(StageLayout::kSmallestSide, StageLayout::kLargestSide);
    return side;
}

}  // namespace

SizePanel::SizePanel(QWidget* parent)
    : QGroupBox("Size", parent), width_(NewSide("width")), height_(NewSide("height")) {
    auto* const own = new QPushButton("Own");
    own->setObjectName("ownSize");
    own->setToolTip("The size at which nothing is stretched");
    auto* const row = new QHBoxLayout(this);
    row->addWidget(width_, 1);
    row->addWidget(new QLabel("\u00D7"));
    row->addWidget(height_, 1);
    row->addWidget(own);
    const auto tell = [this] { changed({width_->value(), height_->value()}); };
    connect(width_, &QSpinBox::valueChanged, this, tell);
    connect(height_, &QSpinBox::valueChanged, this, tell);
    connect(own, &QPushButton::clicked, this, [this] { ownSizeWanted(); });
}

void SizePanel::Tell(gdi::SIZE size) {
    const QSignalBlocker width(width_), height(height_);
    width_->setValue(size.cx);
    height_->setValue(size.cy);
}

}  // namespace vxgui::view
