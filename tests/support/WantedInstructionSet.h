#pragma once

namespace vxgui::test {

/// What a program that couldn't be run returns; the tests' list knows it.
constexpr int kSkipped = 77;

/// Puts pixel loops in the version for the set that the environment's VXGUI_TEST_SET names:
/// "plain", "avx2" or "avx512". False, after a word why, when this machine doesn't have it.
bool ObeyWantedInstructionSet();

}  // namespace vxgui::test
