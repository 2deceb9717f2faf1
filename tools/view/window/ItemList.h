#pragma once

#include <QListWidget>

#include "vxgui/theme/skin/Skin.h"

namespace vxgui::view {

/// The items of a skin, each with a small picture of it.
class ItemList : public QListWidget {
public:
    explicit ItemList(QWidget* parent = nullptr);

    /// The row that is chosen stays the one of that section, if it is still there.
    void Fill(const Skin& skin);
    /// Hides what doesn't have the text in its name.
    void Filter(const QString& text);
    /// Chooses an item by its name or section; false when there is none.
    bool Choose(const QString& name);
    /// -1 when none is.
    int Chosen() const { return currentRow(); }
};

}  // namespace vxgui::view
