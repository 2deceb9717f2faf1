#include "vxgui/platform/gdiplus/FlatObject.h"

#include <mutex>
#include <shared_mutex>
#include <unordered_map>

namespace vxgui::gdiplus {
namespace {

struct ObjectTable {
    std::shared_mutex mutex;
    std::unordered_map<uintptr_t, Ref<FlatObject>> objects;
    uintptr_t last = 0x1000;  // small numbers are what callers pass by mistake
};

// Never destroyed: handles may be used while the process ends.
ObjectTable& TheTable() {
    static ObjectTable* const table = new ObjectTable;
    return *table;
}

}  // namespace

void* EnterObject(Ref<FlatObject> object) {
    ObjectTable& table = TheTable();
    const std::unique_lock lock(table.mutex);
    table.last += 8;
    table.objects.emplace(table.last, std::move(object));
    return reinterpret_cast<void*>(table.last);
}

Ref<FlatObject> FindObject(const void* handle) {
    ObjectTable& table = TheTable();
    const std::shared_lock lock(table.mutex);
    const auto at = table.objects.find(reinterpret_cast<uintptr_t>(handle));
    return at == table.objects.end() ? nullptr : at->second;
}

bool RetireObject(const void* handle) {
    ObjectTable& table = TheTable();
    Ref<FlatObject> last;  // its destructor must not run under the lock
    const std::unique_lock lock(table.mutex);
    const auto at = table.objects.find(reinterpret_cast<uintptr_t>(handle));
    if (at == table.objects.end()) return false;
    last = std::move(at->second);
    table.objects.erase(at);
    return true;
}

size_t LiveObjectCount() {
    const std::shared_lock lock(TheTable().mutex);
    return TheTable().objects.size();
}

}  // namespace vxgui::gdiplus
