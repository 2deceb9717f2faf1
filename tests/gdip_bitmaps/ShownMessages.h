#pragma once

#include <vector>

#include "vxgui/platform/kernel.h"

namespace vxgui::test {

/// Writes down the texts of message boxes in place of showing them.
class ShownMessages {
public:
    ShownMessages() {
        Texts().clear();
        kernel::SetMessageBoxFunction([](const String& text, const String&, UINT) {
            Texts().push_back(text);
            return 1;
        });
    }
    ~ShownMessages() { kernel::SetMessageBoxFunction(nullptr); }
    ShownMessages(const ShownMessages&) = delete;
    ShownMessages& operator=(const ShownMessages&) = delete;

    static std::vector<String>& Texts() {
        static std::vector<String> texts;
        return texts;
    }
};

}  // namespace vxgui::test
