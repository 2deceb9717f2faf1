#include <QGridLayout>
#include <QPushButton>

#include "vxgui/platform/qt6/AdjustDialog.h"
#include "vxgui/platform/qt6/QtText.h"

namespace vxgui::qt6 {

AdjustDialog::AdjustDialog(forms::AdjustEvents& events, const forms::AdjustCaptions& captions)
    : events_(events) {
    setWindowTitle(TextOf(captions.form));
    setModal(true);
    auto* const all = new QVBoxLayout(this);
    auto* const panes = new QHBoxLayout;
    auto* const controls = new QHBoxLayout;
    all->addLayout(panes, 1);
    all->addLayout(controls);
    MakePanes(*panes);
    MakeValues(*controls, captions);
    MakeSide(*controls, captions);
    timing_ = new QLabel(this);
    timing_->setObjectName("Label1");
    all->addWidget(timing_);
    connect(&timer_, &QTimer::timeout, this, [this] { events_.TimerFired(); });
}

PixelPane* AdjustDialog::MakePane(forms::Pane pane, const char* name) {
    auto* const made = new PixelPane(
        [this, pane](const forms::PanePixels& pixels) { events_.PaintPane(pane, pixels); }, 0,
        this);
    made->setObjectName(name);
    made->setMinimumSize(fontMetrics().height() * 15, fontMetrics().height() * 12);
    made->pressed = [this](double x, double y) { events_.MousePressed(x, y); };
    made->moved = [this](double x, double y) { events_.MouseMoved(x, y); };
    made->released = [this](double x, double y) { events_.MouseReleased(x, y); };
    made->setCursor(Qt::OpenHandCursor);
    return made;
}

void AdjustDialog::MakePanes(QBoxLayout& layout) {
    before_ = MakePane(forms::Pane::Before, "Picture2");
    after_ = MakePane(forms::Pane::After, "Picture3");
    before_->resized = [this] {
        const QSizeF size = before_->PixelSize();
        if (shown_) events_.Resized(size.width(), size.height());
    };
    layout.addWidget(before_, 1);
    layout.addWidget(after_, 1);
}

void AdjustDialog::MakeValues(QBoxLayout& layout, const forms::AdjustCaptions& captions) {
    auto* const grid = new QGridLayout;
    for (int i = 0; i < 3; ++i) {
        values_[static_cast<size_t>(i)] = MakeValueControls(this, TextOf(captions.values[i]), i);
        Place(At(i), *grid, i);
        ConnectValue(i);
    }
    layout.addLayout(grid);
    const int side = captions.wheelSide;
    wheel_ = new PixelPane([this](const forms::PanePixels& pixels) { events_.PaintWheel(pixels); },
                           side, this);
    wheel_->setObjectName("picColorWheel");
    // At 96 dots an inch text is about 15 pixels high: the wheel grows with it.
    const int scaled = std::max(side, side * fontMetrics().height() / 18);
    wheel_->setFixedSize(scaled, scaled);
    layout.addStretch(1);
    layout.addWidget(wheel_);
    layout.addStretch(1);
}

void AdjustDialog::ConnectValue(int index) {
    const ValueControls& value = At(index);
    connect(value.slider, &QSlider::valueChanged, this,
            [this, index](int place) { events_.SliderChanged(index, place); });
    connect(value.text, &QLineEdit::textChanged, this, [this, index](const QString& text) {
        events_.TextChanged(index, {reinterpret_cast<const char16_t*>(text.utf16()),
                                    static_cast<size_t>(text.size())});
    });
    // What is left of an unfinished number gives way to the number.
    connect(value.text, &QLineEdit::editingFinished, this,
            [this, index] { events_.UpDownChanged(index, At(index).upDown->Value()); });
    value.text->allows = [this](char16_t key, int caret) { return events_.AllowsKey(key, caret); };
    value.text->stepped = [this, index](int by) { At(index).upDown->Step(by); };
    value.upDown->changed = [this, index](int number) { events_.UpDownChanged(index, number); };
}

QCheckBox* AdjustDialog::MakeCheckBox(QBoxLayout& layout, std::u16string_view caption,
                                      const char* name) {
    auto* const box = new QCheckBox(TextOf(caption), this);
    box->setObjectName(name);
    layout.addWidget(box);
    return box;
}

void AdjustDialog::MakeButton(QBoxLayout& layout, std::u16string_view caption, const char* name,
                              forms::AdjustButton button) {
    auto* const made = new QPushButton(TextOf(caption), this);
    made->setObjectName(name);
    made->setDefault(button == forms::AdjustButton::Ok);
    made->setAutoDefault(button == forms::AdjustButton::Ok);
    layout.addWidget(made);
    connect(made, &QPushButton::clicked, this, [this, button] { events_.ButtonPressed(button); });
}

void AdjustDialog::MakeZoom(QBoxLayout& layout) {
    auto* const row = new QHBoxLayout;
    auto* const steps = new UpDown(this);
    steps->setObjectName("UpDown2");
    steps->stepped = [this](int by) { by > 0 ? events_.ZoomUp() : events_.ZoomDown(); };
    scale_ = new QLabel("1:1", this);
    scale_->setObjectName("lblScale");
    row->addWidget(steps);
    row->addWidget(scale_);
    row->addStretch(1);
    layout.addLayout(row);
}

void AdjustDialog::MakeSide(QBoxLayout& layout, const forms::AdjustCaptions& captions) {
    auto* const side = new QVBoxLayout;
    layout.addLayout(side);
    colourize_ = MakeCheckBox(*side, captions.colourize, "chkColourize");
    preview_ = MakeCheckBox(*side, captions.preview, "chkPreview");
    connect(colourize_, &QCheckBox::toggled, this,
            [this](bool ticked) { events_.ColourizeChanged(ticked); });
    connect(preview_, &QCheckBox::toggled, this,
            [this](bool ticked) { events_.PreviewChanged(ticked); });
    MakeZoom(*side);
    side->addStretch(1);
    MakeButton(*side, captions.ok, "cmdOk", forms::AdjustButton::Ok);
    MakeButton(*side, captions.cancel, "cmdCancel", forms::AdjustButton::Cancel);
    MakeButton(*side, captions.reset, "cmdReset", forms::AdjustButton::Reset);
}

}  // namespace vxgui::qt6
