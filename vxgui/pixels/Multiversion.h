#pragma once

#include "vxgui/pixels/InstructionSet.h"

#if defined(__x86_64__)
#define VXGUI_TARGET_AVX2 __attribute__((target("avx2")))
// What x86-64-v4 names, one by one: functions without a target of their own are inlined into one
// with more features, but not into one of another architecture.
#define VXGUI_TARGET_AVX512                                                     \
    __attribute__((                                                             \
        target("avx512f,avx512bw,avx512cd,avx512dq,avx512vl,avx2,bmi,bmi2,fma," \
               "f16c,lzcnt,movbe,popcnt")))
#define VXGUI_WIDE_OR(wide, other) wide
#else
#define VXGUI_TARGET_AVX2
#define VXGUI_TARGET_AVX512
#define VXGUI_WIDE_OR(wide, other) other
#endif

/// Defines a pixel loop of which the compiler makes one version for each instruction set:
///
///     VXGUI_MULTIVERSION(void, Invert, (uint32_t* pixels, size_t count)) {
///         for (size_t i = 0; i < count; ++i) pixels[i] = ~pixels[i];
///     }
///
/// `Invert(pixels, count)` then runs the version that the machine has the instructions for, by one
/// load and one indirect jump. For the unnamed namespace of a source file; what is called in the
/// loop must be inlined, or it stays plain.
#define VXGUI_MULTIVERSION(result, name, parameters) \
    VXGUI_MULTIVERSION_BESIDE(name##OfAnySet, result, name, parameters)

/// The same for a loop of which `wide`, a function with these parameters and `VXGUI_TARGET_AVX512`,
/// is the version for the widest set, written by hand where compilers don't find its operations. It
/// is declared, or left out, under `#if defined(__x86_64__)`.
#define VXGUI_MULTIVERSION_BESIDE(wide, result, name, parameters)                                 \
    [[gnu::always_inline]] static inline result name##OfAnySet parameters;                        \
    static const ::vxgui::MultiversionLoop<&name##OfAnySet, &VXGUI_WIDE_OR(wide, name##OfAnySet)> \
        name;                                                                                     \
    static inline result name##OfAnySet parameters

namespace vxgui {

template <auto Loop, auto Wide>
class MultiversionLoop;

/// The versions of one loop and the choice among them. There is one object for each loop; a loop
/// that runs before its object was made, while the library is loaded, is the plain one.
template <class Result, class... Arguments, Result (*Loop)(Arguments...),
          Result (*Wide)(Arguments...)>
class MultiversionLoop<Loop, Wide> : SetDependent {
public:
    MultiversionLoop() : SetDependent(Choose) {}

    [[gnu::always_inline]] Result operator()(Arguments... arguments) const {
        return chosen_(arguments...);
    }

private:
    static Result Plain(Arguments... arguments) { return Loop(arguments...); }
    VXGUI_TARGET_AVX2 static Result Avx2(Arguments... arguments) { return Loop(arguments...); }
    VXGUI_TARGET_AVX512 static Result Avx512(Arguments... arguments) { return Wide(arguments...); }

    static void Choose(InstructionSet set) {
        chosen_ = set == InstructionSet::Avx512 ? Avx512
                  : set == InstructionSet::Avx2 ? Avx2
                                                : Plain;
    }

    using Version = Result (*)(Arguments...);
    static inline constinit Version chosen_ = Plain;
};

}  // namespace vxgui
