#include "fuzz/Fuzz.h"
#include "vxgui/base/Attempt.h"
#include "vxgui/theme/ThemeItem.h"

// What a bag holds is what it gives back; an item takes from it what it can.
FUZZER(Bag, input) {
    using namespace vxgui;
    const auto bag = New<ole::PropertyBag>();
    if (!Attempt([&] { bag->Contents(fuzz::BytesOf(input)); })) return;
    const auto again = New<ole::PropertyBag>();
    again->Contents(bag->Contents());
    if (again->Names().size() != bag->Names().size()) __builtin_trap();
    Attempt([&] { New<ThemeItem>()->ReadProperties(bag); });
}
