#pragma once

#include "vxgui/text/KeyedItems.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

/// Text styles in their order, by index from 1 or by key. An unknown index or key reads as none.
class VXGUI_API TextStyles : public Object {
public:
    TextStyles();

    Ref<TextStyle> Add(const String& key = {}, int32_t textColor = 0, int32_t textAlignHorz = 0,
                       int32_t textAlignVert = 0, int32_t textStyle = 0, int32_t textContrast = 0,
                       int32_t shadowColor = 0, int32_t shadowThickness = 0, int32_t shadowX = 0,
                       int32_t shadowY = 0, int32_t shadowOffsetX = 0, int32_t shadowOffsetY = 0);
    /// Adds at the end; an item that stands under the key already is replaced.
    void AddItem(const Ref<TextStyle>& item, const String& key = {});
    Ref<TextStyle> Item(int32_t index) const;
    Ref<TextStyle> Item(const String& key) const;
    int32_t Count() const;
    void Remove(int32_t index);
    void Remove(const String& key);
    void Clear();

    KeyedItems<TextStyle>::Iterator begin() const { return items_.begin(); }
    KeyedItems<TextStyle>::Iterator end() const { return items_.end(); }

    // For the library's own classes.
    VXGUI_LOCAL const String& KeyOf(int32_t index) const { return items_.KeyOf(index); }

protected:
    ~TextStyles() override;

private:
    KeyedItems<TextStyle> items_;
};

}  // namespace vxgui
