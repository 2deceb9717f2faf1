#include "tests/support/WantedInstructionSet.h"

#include <cstdlib>
#include <iostream>
#include <map>
#include <string>

#include "vxgui/pixels/InstructionSet.h"

namespace vxgui::test {

bool ObeyWantedInstructionSet() {
    static const std::map<std::string, InstructionSet> kNames{{"plain", InstructionSet::Plain},
                                                              {"avx2", InstructionSet::Avx2},
                                                              {"avx512", InstructionSet::Avx512}};
    const char* const wish = std::getenv("VXGUI_TEST_SET");
    if (!wish) return true;
    const InstructionSet set = kNames.at(wish);
    if (set > MachineInstructionSet()) {
        std::cout << "Left out: this machine has no " << wish << ".\n";
        return false;
    }
    UseInstructionSet(set);
    return true;
}

}  // namespace vxgui::test
