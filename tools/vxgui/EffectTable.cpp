#include "tools/vxgui/EffectTable.h"

#include <cstdio>
#include <fstream>

#include "tools/vxgui/ToolError.h"

namespace vxgui::tool {
namespace {

constexpr int kEntries = 256;

bool IsByte(int value) { return value >= 0 && value <= 255; }

bool Enter(const std::string& line, int entry, ColorLUTParams& tables) {
    int r = 0, g = 0, b = 0, a = 0;
    char rest = 0;
    if (std::sscanf(line.c_str(), "%d,%d,%d,%d %c", &r, &g, &b, &a, &rest) != 4) return false;
    if (!IsByte(r) || !IsByte(g) || !IsByte(b) || !IsByte(a)) return false;
    tables.lutR.Colors[entry] = static_cast<BYTE>(r);
    tables.lutG.Colors[entry] = static_cast<BYTE>(g);
    tables.lutB.Colors[entry] = static_cast<BYTE>(b);
    tables.lutA.Colors[entry] = static_cast<BYTE>(a);
    return true;
}

[[noreturn]] void FailAt(const std::string& path, int line, const std::string& text) {
    Fail(path + ":" + std::to_string(line), text);
}

}  // namespace

ColorLUTParams ReadEffectTable(const std::string& path) {
    std::ifstream file(path);
    if (!file) Fail(path, "can't be read");
    ColorLUTParams tables{};
    int entries = 0, number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (line.find_first_not_of(" \t\r") == std::string::npos || line[0] == '#') continue;
        if (entries == kEntries) FailAt(path, number, "256 lines were expected, and no more");
        if (!Enter(line, entries++, tables)) {
            FailAt(path, number, "R,G,B,A from 0 to 255 was expected");
        }
    }
    if (entries < kEntries) FailAt(path, number, "256 lines of R,G,B,A were expected");
    return tables;
}

}  // namespace vxgui::tool
