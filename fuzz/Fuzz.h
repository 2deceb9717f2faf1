#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "vxgui/base/Variant.h"

/// A fuzzer is one function over bytes: `FUZZER(Tga, input) { Decode(input); }`. Built with clang
/// it is a libFuzzer program of its own; built for the tests it stands in a list, from which the
/// seeds and all findings are run again.
namespace vxgui::fuzz {

using Input = std::span<const uint8_t>;
using Fuzzer = void (*)(Input input);

/// Enters a fuzzer in the list of the tests; answers true.
bool Enter(const char* name, Fuzzer fuzzer);
/// Bounds under which one input takes milliseconds, set for the calling apartment.
void SetSmallLimits();

inline ByteArray BytesOf(Input input) { return {input.begin(), input.end()}; }
inline std::string TextOf(Input input) { return {input.begin(), input.end()}; }

}  // namespace vxgui::fuzz

#ifdef VXGUI_FUZZ_REPLAY
#define FUZZER(Name, input)                                                            \
    static void Run##Name(vxgui::fuzz::Input input);                                   \
    [[maybe_unused]] static const bool g##Name = vxgui::fuzz::Enter(#Name, Run##Name); \
    static void Run##Name(vxgui::fuzz::Input input)
#else
#define FUZZER(Name, input)                                                   \
    static void Run##Name(vxgui::fuzz::Input input);                          \
    extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) { \
        vxgui::fuzz::SetSmallLimits();                                        \
        Run##Name({data, size});                                              \
        return 0;                                                             \
    }                                                                         \
    static void Run##Name(vxgui::fuzz::Input input)
#endif
