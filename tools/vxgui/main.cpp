#include <iostream>

#include "tools/vxgui/Tool.h"

int main(int argc, char** argv) {
    return vxgui::tool::RunTool({argv + 1, argv + argc}, std::cout, std::cerr);
}
