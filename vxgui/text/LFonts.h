#pragma once

#include "vxgui/text/KeyedItems.h"
#include "vxgui/text/LFont.h"

namespace vxgui {

/// Fonts in their order, by index from 1 or by key. An unknown index or key reads as none.
class VXGUI_API LFonts : public Object {
public:
    LFonts();

    Ref<LFont> Add(const String& name, const String& key = {}, int32_t height = 12,
                   int32_t width = 0, int32_t escapement = 0, int32_t orientation = 0,
                   int32_t weight = 400, uint8_t italic = 0, uint8_t underline = 0,
                   uint8_t strikeOut = 0, uint8_t charSet = 0, uint8_t outPrecision = 0,
                   uint8_t clipPrecision = 0, uint8_t quality = 0, uint8_t pitchAndFamily = 0);
    Ref<LFont> AddStdFont(const Ref<ole::StdFont>& font, uint8_t quality, const String& key = {});
    /// Adds a new font as it is: without a name it draws with the user interface font.
    Ref<LFont> AddDefGuiFont(const String& key = {});
    /// Adds at the end; an item that stands under the key already is replaced.
    void AddItem(const Ref<LFont>& item, const String& key = {});
    Ref<LFont> Item(int32_t index) const;
    Ref<LFont> Item(const String& key) const;
    int32_t Count() const;
    void Remove(int32_t index);
    void Remove(const String& key);
    void Clear();

    KeyedItems<LFont>::Iterator begin() const { return items_.begin(); }
    KeyedItems<LFont>::Iterator end() const { return items_.end(); }

    // For the library's own classes.
    VXGUI_LOCAL const String& KeyOf(int32_t index) const { return items_.KeyOf(index); }

protected:
    ~LFonts() override;

private:
    KeyedItems<LFont> items_;
};

}  // namespace vxgui
