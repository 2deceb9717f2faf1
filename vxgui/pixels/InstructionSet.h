#pragma once

namespace vxgui {

/// What pixel loops have versions for, each with all that the one before it has. `Avx512` is
/// x86-64-v4.
enum class InstructionSet { Plain, Avx2, Avx512 };

/// The best that this machine and its system have.
InstructionSet MachineInstructionSet();

/// The one in use: the machine's, unless `UseInstructionSet` said otherwise.
InstructionSet UsedInstructionSet();

/// Puts all loops in their version for `set`, which the machine must have. For tests, while no loop
/// runs.
void UseInstructionSet(InstructionSet set);

/// What changes with the set in use. Lives as long as the library.
class SetDependent {
protected:
    /// Calls `choose` with the set in use, now and whenever it changes.
    explicit SetDependent(void (*choose)(InstructionSet));

private:
    friend void UseInstructionSet(InstructionSet set);

    void (*const choose_)(InstructionSet);
    const SetDependent* const next_;
};

}  // namespace vxgui
