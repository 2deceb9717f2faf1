#include "fuzz/drawing/ExactCalls.h"
#include "fuzz/drawing/ObjectCalls.h"

// Random calls over surfaces, skin elements and the object layer, on objects that live for one
// input.
FUZZER(Calls, input) {
    using namespace vxgui::fuzz;
    ExactCalls exact;
    ObjectCalls objects;
    ByteReader bytes(input);
    while (!bytes.AtEnd()) {
        if (bytes.Take<uint8_t>() % 2)
            exact.Next(bytes);
        else
            objects.Next(bytes);
    }
}
