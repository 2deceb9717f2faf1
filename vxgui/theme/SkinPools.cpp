#include "vxgui/theme/SkinPools.h"

#include "vxgui/theme/FontPool.h"

namespace vxgui {

Ref<LFont> SkinPools::Font(int32_t Index) {
    return FontByKey(fonts, "Font" + String::FromInt(Index));
}

Ref<LFont> SkinPools::SystemFont(int32_t Index) {
    return FontByKey(fonts, "SystemFont" + String::FromInt(Index));
}

}  // namespace vxgui
