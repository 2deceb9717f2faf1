#pragma once

#include <QLineEdit>
#include <QMainWindow>
#include <QTimer>
#include <functional>

#include "tools/view/LastGoodSkin.h"
#include "tools/view/SkinWatch.h"
#include "tools/view/window/FactsPanel.h"
#include "tools/view/window/ItemList.h"
#include "tools/view/window/MessageList.h"
#include "tools/view/window/PickerPanel.h"
#include "tools/view/window/RecolourPanel.h"
#include "tools/view/window/SizePanel.h"
#include "tools/view/window/StagePanel.h"
#include "tools/view/window/StatePanel.h"
#include "tools/vxgui/ViewOptions.h"

namespace vxgui::view {

/// The viewer: items at the left, the stage in the middle, what is known at the right, messages
/// below.
class VXGUI_LOCAL ViewerWindow : public QMainWindow {
public:
    explicit ViewerWindow(const tool::ViewOptions& options);
    ~ViewerWindow() override;

    const LastGoodSkin& Source() const { return skin_; }
    StageView& Stage() { return stage_->Stage(); }
    /// Saves the skin as it is shown in a folder that is new or empty; a box says what is wrong.
    void Save(const QString& folder);
    /// Told whenever the files were read again.
    std::function<void(const LastGoodSkin&)> read;

private:
    void Arrange();
    QWidget* NewItemColumn();
    QWidget* NewInspector();
    void Connect();
    void Apply(const tool::ViewOptions& options);
    void LookForChanges();
    void Read(bool picturesChanged);
    void Take(const Recolour& colours);
    void ShowSkin();
    void AskWhereToSave();
    void ShowChosen();
    gdi::SIZE FirstSizeOf(const SkinItem& item) const;

    LastGoodSkin skin_;
    SkinWatch watch_;
    QTimer looking_;
    int chosen_ = -1;
    ItemList* items_;
    StagePanel* stage_;
    StatePanel* state_;
    SizePanel* size_;
    FactsPanel* facts_;
    PickerPanel* picker_;
    RecolourPanel* recolour_;
    MessageList* messages_;
};

}  // namespace vxgui::view
