#include "vxgui/platform/gdi/HandleTable.h"

#include <array>
#include <mutex>
#include <type_traits>

#include "vxgui/platform/gdi/ThreadStore.h"

namespace vxgui::gdi {
namespace {

// A handle: the index in the low 20 bits, the generation above. Slots stand in chunks that are
// never moved or freed, so that a look-up needs no lock.
constexpr int kIndexBits = 20;
constexpr uintptr_t kIndexMask = (uintptr_t{1} << kIndexBits) - 1;
constexpr uint32_t kChunkSize = 1024;
constexpr uint32_t kChunkCount = (1u << kIndexBits) / kChunkSize;
constexpr uint64_t kGenerationStep = uint64_t{1} << HandleSlot::kReferenceBits;
constexpr uint64_t kHandleGenerationMask = UINTPTR_MAX >> kIndexBits;

struct Table {
    std::mutex mutex;
    std::array<std::atomic<HandleSlot*>, kChunkCount> chunks{};
    uint32_t used = 1;  // index 0 stays empty, so that no handle is null
    uint32_t firstFree = 0;
};

// Handles may be used while the process ends.
static_assert(std::is_trivially_destructible_v<Table>);
constinit Table table;

uint64_t GenerationOf(uint64_t state) {
    return (state >> HandleSlot::kReferenceBits) & kHandleGenerationMask;
}

HandleSlot* SlotAt(uint32_t index) {
    HandleSlot* chunk = table.chunks[index / kChunkSize].load(std::memory_order_acquire);
    return chunk ? &chunk[index % kChunkSize] : nullptr;
}

HandleSlot* FreshSlot() {
    if (table.used >= kChunkCount * kChunkSize) return nullptr;
    const uint32_t index = table.used;
    std::atomic<HandleSlot*>& chunk = table.chunks[index / kChunkSize];
    if (!chunk.load(std::memory_order_relaxed)) {
        chunk.store(new HandleSlot[kChunkSize], std::memory_order_release);
    }
    ++table.used;
    HandleSlot* slot = SlotAt(index);
    slot->index = index;
    return slot;
}

HandleSlot* FreeSlot() {
    const std::lock_guard lock(table.mutex);
    if (table.firstFree == 0) return FreshSlot();
    HandleSlot* slot = SlotAt(table.firstFree);
    table.firstFree = slot->nextFree;
    return slot;
}

void GiveBack(HandleSlot* slot) {
    const std::lock_guard lock(table.mutex);
    slot->nextFree = table.firstFree;
    table.firstFree = slot->index;
}

// Those at hand need no lock.
using SlotsAtHand = ThreadStore<HandleSlot, 8, GiveBack>;

HandleSlot* TakeSlot() {
    HandleSlot* const slot = SlotsAtHand::Take();
    return slot ? slot : FreeSlot();
}

HGDIOBJ HandleValue(const HandleSlot& slot, uint64_t state) {
    return reinterpret_cast<HGDIOBJ>(static_cast<uintptr_t>(GenerationOf(state)) << kIndexBits |
                                     slot.index);
}

}  // namespace

GdiObject* HandleTable::Enter(std::unique_ptr<GdiObject> object) {
    HandleSlot* slot = TakeSlot();
    if (!slot) return nullptr;
    const uint64_t generation = (slot->state.load() & ~HandleSlot::kReferences) + kGenerationStep;
    object->slot_ = slot;
    object->handle_ = HandleValue(*slot, generation);
    slot->object.store(object.get(), std::memory_order_relaxed);
    slot->state.store(generation | 2, std::memory_order_release);
    return object.release();
}

GdiObject* HandleTable::Acquire(const void* handle) {
    const auto value = reinterpret_cast<uintptr_t>(handle);
    const uint64_t generation = value >> kIndexBits;
    if ((generation & 1) == 0) return nullptr;
    HandleSlot* slot = SlotAt(static_cast<uint32_t>(value & kIndexMask));
    if (!slot) return nullptr;
    uint64_t state = slot->state.load(std::memory_order_acquire);
    do {
        if (GenerationOf(state) != generation || (state & HandleSlot::kReferences) == 0)
            return nullptr;
    } while (!Exchange(slot->state, state, state + 1));
    return slot->object.load(std::memory_order_relaxed);
}

bool HandleTable::Retire(GdiObject& object) {
    HandleSlot& slot = *object.slot_;
    const auto generation = reinterpret_cast<uintptr_t>(object.handle_) >> kIndexBits;
    uint64_t state = slot.state.load();
    do {
        if (GenerationOf(state) != generation) return false;
    } while (!Exchange(slot.state, state, state + kGenerationStep));
    slot.Release();
    return true;
}

void HandleSlot::Vacate() {
    object.load(std::memory_order_relaxed)->Drop();
    object.store(nullptr, std::memory_order_relaxed);
    SlotsAtHand::Give(this);
}

size_t HandleTable::LiveCount() {
    const std::lock_guard lock(table.mutex);
    size_t live = 0;
    for (uint32_t index = 1; index < table.used; ++index) {
        live += GenerationOf(SlotAt(index)->state.load()) & 1;
    }
    return live;
}

}  // namespace vxgui::gdi
