#include <iostream>

#include "tools/vxgui/Tool.h"
#include "vxgui/platform/core7.h"

namespace {

// What the library misses for texts it says once, in its trace.
void TellOfTexts(const vxgui::String&, const vxgui::String& text, int32_t) {
    const std::string line = text.Utf8(), topic = "text: ";
    if (line.starts_with(topic)) std::cerr << "vxgui: " << line.substr(topic.size()) << "\n";
}

}  // namespace

int main(int argc, char** argv) {
    vxgui::core7::SetTraceSink(TellOfTexts);
    return vxgui::tool::RunTool({argv + 1, argv + argc}, std::cout, std::cerr);
}
