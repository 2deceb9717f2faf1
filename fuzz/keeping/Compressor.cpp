#include "fuzz/Fuzz.h"
#include "vxgui/platform/core7.h"

FUZZER(Compressor, input) {
    using namespace vxgui;
    const ByteArray bytes = fuzz::BytesOf(input);
    core7::GetSize(bytes);
    core7::Decompress(bytes);
    if (core7::Decompress(core7::Compress(bytes)) != bytes) __builtin_trap();
}
