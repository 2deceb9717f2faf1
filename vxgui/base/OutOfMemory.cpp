#include "vxgui/base/OutOfMemory.h"

namespace vxgui {

void RaiseOutOfMemory(const char* source) {
    try {
        throw Error(ErrorNumber::OutOfMemory, source, "Out of memory");
    } catch (const std::bad_alloc&) {  // not even the texts can be had
    }
    throw Error(ErrorNumber::OutOfMemory, String(), String());
}

}  // namespace vxgui
