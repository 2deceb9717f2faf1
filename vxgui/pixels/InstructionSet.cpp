#include "vxgui/pixels/InstructionSet.h"

#include <utility>

namespace vxgui {
namespace {

constinit const SetDependent* gLast = nullptr;

#if defined(__x86_64__)
InstructionSet Detected() {
    __builtin_cpu_init();  // nobody may have done it yet while the library is loaded
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("bmi2") &&
        __builtin_cpu_supports("fma")) {
        return InstructionSet::Avx512;
    }
    return __builtin_cpu_supports("avx2") ? InstructionSet::Avx2 : InstructionSet::Plain;
}
#else
InstructionSet Detected() { return InstructionSet::Plain; }
#endif

InstructionSet& Used() {
    static InstructionSet used = MachineInstructionSet();
    return used;
}

}  // namespace

InstructionSet MachineInstructionSet() {
    static const InstructionSet detected = Detected();
    return detected;
}

InstructionSet UsedInstructionSet() { return Used(); }

void UseInstructionSet(InstructionSet set) {
    Used() = set;
    for (const SetDependent* each = gLast; each; each = each->next_) each->choose_(set);
}

SetDependent::SetDependent(void (*choose)(InstructionSet))
    : choose_(choose), next_(std::exchange(gLast, this)) {
    choose_(Used());
}

}  // namespace vxgui
