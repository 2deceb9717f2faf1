#include "vxgui/platform/core7/define/Parser.h"

#include "vxgui/platform/core7/define/Lines.h"

namespace vxgui::core7 {
namespace {

// A file that is no define file at all would else have a problem in every line.
constexpr size_t kMostProblems = 1000;

constexpr char kTextTooLong[] = "the text is longer than the limit allows";
constexpr char kTooManyKeys[] = "more keys and sections than the limit allows";

class Parser {
public:
    explicit Parser(const DefineLimits& limits) : limits_(limits) {}

    ParsedDefine Parse(std::u16string_view text) {
        if (text.size() > limits_.bytes) return TooMuch({}, kTextTooLong);
        DefineLineReader lines(text);
        for (std::u16string_view line; lines.Next(&line);) {
            const DefineLine scanned = ScanDefineLine(line);
            if (scanned.problem) Report({lines.Number(), scanned.problemColumn}, scanned.problem);
            if (scanned.kind == DefineLine::Kind::kNothing) continue;
            const DefinePosition position{lines.Number(), scanned.column};
            if (++keys_ > limits_.keys) return TooMuch(position, kTooManyKeys);
            Take(scanned, position);
        }
        return std::move(parsed_);
    }

private:
    void Take(const DefineLine& line, DefinePosition position) {
        if (line.kind == DefineLine::Kind::kSection)
            return parsed_.store.Enter(line.name, position);
        const auto* first = parsed_.store.Add({line.name, line.value, position});
        if (first) {
            Report(position, "the key stands already in line " +
                                 String::FromInt(first->position.line) + ", which counts");
        }
    }

    void Report(DefinePosition position, const String& text) {
        auto& problems = parsed_.problems;
        if (problems.size() > kMostProblems) return;
        const bool last = problems.size() == kMostProblems;
        problems.push_back({position.line, position.column,
                            last ? "there are more problems, which are not listed" : text});
    }

    static ParsedDefine TooMuch(DefinePosition position, const char* text) {
        return {{}, {{position.line, position.column, text}}, false};
    }

    const DefineLimits limits_;
    ParsedDefine parsed_;
    size_t keys_ = 0;
};

}  // namespace

ParsedDefine ParseDefineText(std::u16string_view text, const DefineLimits& limits) {
    return Parser(limits).Parse(text);
}

}  // namespace vxgui::core7
