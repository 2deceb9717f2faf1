#include "vxgui/theme/skin/SkinError.h"

namespace vxgui {

SkinError::SkinError(const String& lines) : Error(ErrorNumber::InvalidCall, {}, lines) {}

SkinError::~SkinError() = default;

void RefuseSkin(const String& path, const String& text) {
    throw SkinError(path + ": error: " + text);
}

}  // namespace vxgui
