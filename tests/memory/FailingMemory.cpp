#include "tests/memory/FailingMemory.h"

#include <execinfo.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

extern "C" {
void* __real_malloc(size_t size);
void* __real_calloc(size_t count, size_t size);
}

namespace vxgui::test {
namespace {

enum class Mode { Off, Count, FailOnce, FailOnwards };

thread_local Mode mode = Mode::Off;
thread_local size_t taken = 0, failing = 0;
thread_local bool happened = false;
std::atomic<int64_t> live{0};

// Outside of what is counted: no memory is taken while it is filled.
constexpr size_t kMostPlaces = 1 << 16;
uint64_t places[kMostPlaces];
size_t firsts[kMostPlaces];
size_t placeCount = 0;

uint64_t HashOfCalls() {
    void* calls[40];
    const int depth = ::backtrace(calls, 40);
    uint64_t hash = 14695981039346656037u;
    for (int i = 0; i < depth; ++i)
        hash = (hash ^ reinterpret_cast<uintptr_t>(calls[i])) * 1099511628211u;
    return hash | 1;
}

void NotePlace() {
    const uint64_t hash = HashOfCalls();
    size_t at = hash % kMostPlaces;
    while (places[at] != 0 && places[at] != hash) at = (at + 1) % kMostPlaces;
    if (places[at] == hash || placeCount > kMostPlaces / 2) return;
    places[at] = hash;
    firsts[placeCount++] = taken;
}

// Where a debugger stops at what fails.
[[gnu::noinline]] bool Note() { return happened = true; }

bool Fails() {
    if (mode == Mode::Off) return false;
    if (mode == Mode::Count) NotePlace();
    const size_t number = taken++;
    const bool fails = mode == Mode::FailOnce      ? number == failing
                       : mode == Mode::FailOnwards ? number >= failing
                                                   : false;
    return fails && Note();
}

void* Noted(void* block) {
    if (block) ++live;
    return block;
}

void* Take(size_t size) { return Fails() ? nullptr : Noted(__real_malloc(size ? size : 1)); }

void* TakeOrThrow(size_t size) {
    if (void* block = Take(size)) return block;
    throw std::bad_alloc();
}

void GiveBack(void* block) {
    if (!block) return;
    --live;
    std::free(block);
}

}  // namespace

FailingMemory::FailingMemory(size_t n, bool onwards) {
    failing = n;
    taken = 0;
    happened = false;
    mode = onwards ? Mode::FailOnwards : Mode::FailOnce;
}

FailingMemory::~FailingMemory() { mode = Mode::Off; }

bool FailingMemory::Happened() { return happened; }

CountingMemory::CountingMemory() {
    HashOfCalls();  // the first look at a stack loads what it needs
    std::fill(std::begin(places), std::end(places), 0);
    placeCount = taken = 0;
    mode = Mode::Count;
}

CountingMemory::~CountingMemory() { mode = Mode::Off; }

size_t CountingMemory::Count() { return taken; }

std::vector<size_t> CountingMemory::FirstOfEachPlace() { return {firsts, firsts + placeCount}; }

int64_t LiveBlocks() { return live; }

}  // namespace vxgui::test

// The linker leads the library's own calls here; pixels are told by their handles, not counted.
extern "C" {
void* __wrap_malloc(size_t size) { return vxgui::test::Fails() ? nullptr : __real_malloc(size); }
void* __wrap_calloc(size_t count, size_t size) {
    return vxgui::test::Fails() ? nullptr : __real_calloc(count, size);
}
}

[[gnu::noinline]] void* operator new(size_t size) { return vxgui::test::TakeOrThrow(size); }
[[gnu::noinline]] void* operator new[](size_t size) { return vxgui::test::TakeOrThrow(size); }
[[gnu::noinline]] void* operator new(size_t size, const std::nothrow_t&) noexcept {
    return vxgui::test::Take(size);
}
[[gnu::noinline]] void* operator new[](size_t size, const std::nothrow_t&) noexcept {
    return vxgui::test::Take(size);
}
[[gnu::noinline]] void operator delete(void* block) noexcept { vxgui::test::GiveBack(block); }
[[gnu::noinline]] void operator delete[](void* block) noexcept { vxgui::test::GiveBack(block); }
[[gnu::noinline]] void operator delete(void* block, size_t) noexcept {
    vxgui::test::GiveBack(block);
}
[[gnu::noinline]] void operator delete[](void* block, size_t) noexcept {
    vxgui::test::GiveBack(block);
}
