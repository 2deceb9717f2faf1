#include "vxgui/platform/core7/define/Composing.h"

#include "vxgui/base/Error.h"
#include "vxgui/platform/core7/define/Lines.h"

namespace vxgui::core7 {
namespace {

// The line, when it is one line that the reader takes as it is meant.
std::u16string Checked(std::u16string line, DefineLine::Kind kind, std::u16string_view name,
                       std::u16string_view value) {
    const DefineLine read = ScanDefineLine(line);
    const bool good = !read.problem && read.kind == kind && read.name == name &&
                      read.value == value && line.find_first_of(u"\r\n") == line.npos;
    if (!good) {
        throw Error(ErrorNumber::InvalidCall, "DefineEditor.SetString",
                    "A line of a define file cannot say this");
    }
    return line;
}

}  // namespace

std::u16string ComposeSection(const String& name) {
    return Checked(u'[' + name.units() + u']', DefineLine::Kind::kSection, name.view(), {});
}

std::u16string ComposeKey(const std::u16string& beginning, std::u16string_view name,
                          const String& value) {
    std::u16string line = beginning + value.units();
    if (ScanDefineLine(line).value != value.view()) line = beginning + u'"' + value.units() + u'"';
    return Checked(std::move(line), DefineLine::Kind::kKey, name, value.view());
}

std::u16string BeforeValue(std::u16string_view line) {
    const size_t value = line.find_first_not_of(u" \t", line.find(u'=') + 1);
    return std::u16string(line.substr(0, value));
}

}  // namespace vxgui::core7
