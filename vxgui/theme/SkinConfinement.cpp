#include "vxgui/theme/SkinConfinement.h"

#include "vxgui/platform/core7.h"

namespace vxgui {
namespace {

thread_local bool skinsAreConfined = false;

}  // namespace

void ConfineSkins(bool confined) { skinsAreConfined = confined; }

bool AreSkinsConfined() { return skinsAreConfined; }

bool MaySkinRead(const String& folder, const String& path) {
    return !skinsAreConfined || core7::IsWithin(path, folder);
}

}  // namespace vxgui
