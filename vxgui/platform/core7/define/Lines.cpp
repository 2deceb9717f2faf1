#include "vxgui/platform/core7/define/Lines.h"

#include <algorithm>

#include "vxgui/base/Blanks.h"

namespace vxgui::core7 {
namespace {

// The column of `part`, which lies in `line`.
int32_t ColumnOf(std::u16string_view line, std::u16string_view part) {
    return static_cast<int32_t>(part.data() - line.data()) + 1;
}

std::u16string_view WithoutQuotes(std::u16string_view value) {
    if (value.size() < 2 || value.front() != value.back()) return value;
    const bool quoted = value.front() == u'"' || value.front() == u'\'';
    return quoted ? value.substr(1, value.size() - 2) : value;
}

DefineLine Problem(std::u16string_view line, std::u16string_view part, const char* text) {
    DefineLine scanned;
    scanned.problem = text;
    scanned.problemColumn = ColumnOf(line, part);
    return scanned;
}

// `content` begins with the bracket. A header without its end counts all the same: the keys that
// follow would else land in the section before.
DefineLine ScanSection(std::u16string_view line, std::u16string_view content) {
    const size_t close = std::min(content.find(u']'), content.size());
    DefineLine scanned;
    if (close == content.size()) {
        scanned = Problem(line, content, "the section header has no closing bracket");
    } else if (const auto rest = TrimBlanks(content.substr(close + 1));
               !rest.empty() && rest[0] != u';') {
        scanned = Problem(line, rest, "text behind a section header is ignored");
    }
    scanned.kind = DefineLine::Kind::kSection;
    scanned.name = TrimBlanks(content.substr(1, close - 1));
    scanned.column = ColumnOf(line, scanned.name);
    return scanned;
}

DefineLine ScanKey(std::u16string_view line, std::u16string_view content) {
    const size_t equals = content.find(u'=');
    if (equals == content.npos) {
        return Problem(line, content, "neither a section, a key with a value nor a comment");
    }
    if (equals == 0) return Problem(line, content, "a value without a key");
    DefineLine scanned;
    scanned.kind = DefineLine::Kind::kKey;
    scanned.name = TrimBlanks(content.substr(0, equals));
    scanned.value = WithoutQuotes(TrimBlanks(content.substr(equals + 1)));
    scanned.column = ColumnOf(line, scanned.name);
    return scanned;
}

}  // namespace

DefineLine ScanDefineLine(std::u16string_view line) {
    if (const size_t nul = line.find(u'\0'); nul != line.npos) {
        return Problem(line, line.substr(nul), "binary data; the line is ignored");
    }
    const std::u16string_view content = TrimBlanks(line);
    if (content.empty() || content[0] == u';') return {};
    return content[0] == u'[' ? ScanSection(line, content) : ScanKey(line, content);
}

bool DefineLineReader::Next(std::u16string_view* line) {
    if (rest_.empty()) return false;
    const size_t end = std::min(rest_.find_first_of(u"\r\n"), rest_.size());
    *line = rest_.substr(0, end);
    const bool pair = rest_.substr(end).starts_with(u"\r\n");
    rest_.remove_prefix(std::min(end + (pair ? 2 : 1), rest_.size()));
    ++number_;
    return true;
}

}  // namespace vxgui::core7
