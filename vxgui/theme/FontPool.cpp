#include "vxgui/theme/FontPool.h"

namespace vxgui {

Ref<LFont> FontByKey(Ref<LFonts>& pool, const String& key) {
    if (pool) return pool->Item(key);
    Ref<LFont> font = New<LFont>();
    pool = New<LFonts>();
    pool->AddItem(font, key);
    return font;
}

}  // namespace vxgui
