#pragma once

#include <cstdint>
#include <string_view>

namespace vxgui::core7 {

/// What one line of a define file says. The views lie in the line.
struct DefineLine {
    enum class Kind { kNothing, kSection, kKey };  // blank lines and comments are nothing

    Kind kind = Kind::kNothing;
    std::u16string_view name;   ///< of the section or key
    std::u16string_view value;  ///< of the key, without its quotes
    int32_t column = 0;         ///< of the name, from 1
    const char* problem = nullptr;
    int32_t problemColumn = 0;
};

DefineLine ScanDefineLine(std::u16string_view line);

/// Walks over a text line by line; a line ends at LF, CR LF or CR.
class DefineLineReader {
public:
    explicit DefineLineReader(std::u16string_view text) : rest_(text) {}

    /// Takes the next line; false behind the last.
    bool Next(std::u16string_view* line);
    /// The number of the line that was taken last, from 1.
    int32_t Number() const { return number_; }

private:
    std::u16string_view rest_;
    int32_t number_ = 0;
};

}  // namespace vxgui::core7
