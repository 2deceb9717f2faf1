// Prints the checksum of so many random calls, for builds that the tests aren't made with: it must
// be the one that stands in tests/fuzz/RandomCallsTest.cpp, with each VXGUI_TEST_SET too.
#include <cstdio>
#include <cstdlib>

#include "fuzz/drawing/RandomCalls.h"
#include "tests/support/WantedInstructionSet.h"

int main(int count, char** arguments) {
    if (!vxgui::test::ObeyWantedInstructionSet()) return vxgui::test::kSkipped;
    const int calls = count > 1 ? std::atoi(arguments[1]) : 100000;
    std::printf("%d calls: %u\n", calls, vxgui::fuzz::ChecksumAfter(calls));
}
