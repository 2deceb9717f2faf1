// Prints the checksum of so many random calls, for builds that the tests aren't made with: it must
// be the one that stands in tests/fuzz/RandomCallsTest.cpp.
#include <cstdio>
#include <cstdlib>

#include "fuzz/drawing/RandomCalls.h"

int main(int count, char** arguments) {
    const int calls = count > 1 ? std::atoi(arguments[1]) : 100000;
    std::printf("%d calls: %u\n", calls, vxgui::fuzz::ChecksumAfter(calls));
}
