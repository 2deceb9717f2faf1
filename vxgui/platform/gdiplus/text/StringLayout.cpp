#include "vxgui/platform/gdiplus/text/StringLayout.h"

#include <algorithm>

#include "vxgui/platform/gdi/text/PrefixText.h"
#include "vxgui/platform/gdiplus/text/DigitText.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"
#include "vxgui/platform/gdiplus/text/LineBreaker.h"
#include "vxgui/platform/gdiplus/text/LinePlacer.h"

namespace vxgui::gdiplus {
namespace {

// The units of a paragraph, and where the next one begins.
struct ParagraphRange {
    size_t first, end, next;
};

ParagraphRange ParagraphAt(std::u16string_view text, size_t first) {
    const size_t end = std::min(text.find_first_of(u"\r\n", first), text.size());
    size_t next = end;
    if (next < text.size()) ++next;
    if (next < text.size() && text[end] == u'\r' && text[next] == u'\n') ++next;
    return {first, end, next};
}

class Composer {
public:
    Composer(std::u16string_view text, const LayoutRequest& request)
        : format_(*request.format),
          source_(text),
          digits_(WithDigits(text, format_, &digitStorage_)),
          text_(digits_, format_.hotkeyPrefix != HotkeyPrefixNone),
          face_(FontEngine::Here().Find(*request.family, request.style), request.em, format_),
          tabs_(format_, request.em),
          placer_(face_, request) {}

    StringLayout Run() {
        const std::u16string_view shown = text_.Shown();
        for (size_t at = 0; at < shown.size() && placer_.HasRoom();) {
            const ParagraphRange range = ParagraphAt(shown, at);
            DoParagraph(range, range.next < shown.size());
            at = range.next;
        }
        StringLayout layout = placer_.Finish();
        const bool whole = fitted_ == shown.size();
        layout.units = static_cast<INT>(whole ? source_.size() : text_.SourceOf(fitted_));
        return layout;
    }

private:
    void DoParagraph(const ParagraphRange& range, bool more) {
        const std::u16string_view text = text_.Shown().substr(range.first, range.end - range.first);
        const Paragraph paragraph(face_, tabs_, text);
        const LineBreaker breaker(face_, format_, paragraph, placer_.LineWidth());
        size_t at = 0;
        do {
            size_t next = 0;
            const StringLine line = breaker.Next(at, placer_.OnLastLine(), more, &next);
            AddLine(range.first, paragraph, line);
            const bool cut = line.dots || line.end < text.size();
            fitted_ = range.first + (line.dots ? line.headEnd : line.end);
            if (!cut) fitted_ = range.next;
            at = next;
        } while (at < text.size() && placer_.HasRoom());
    }

    void AddLine(size_t first, const Paragraph& paragraph, const StringLine& line) {
        const std::u16string_view text = paragraph.Text();
        const bool whole = !line.dots && line.first == 0 && line.headEnd == text.size();
        if (whole) return AddShaped(paragraph.Pieces(), text, MarkIn(first, line));
        std::u16string shown(text.substr(line.first, line.headEnd - line.first));
        if (line.dots) shown.append(kEllipsis).append(text.substr(line.tail, line.end - line.tail));
        AddShaped(face_.ShapeBetweenTabs(shown), shown, MarkIn(first, line));
    }

    void AddShaped(const std::vector<ShapedString>& pieces, std::u16string_view text, size_t mark) {
        placer_.Add(MakeLine(pieces, tabs_, text, mark, placer_.RightToLeft()));
    }

    // The place of the hot key in what is seen of a line.
    size_t MarkIn(size_t first, const StringLine& line) const {
        constexpr size_t kNone = gdi::PrefixText::npos;
        if (format_.hotkeyPrefix != HotkeyPrefixShow) return kNone;
        const size_t mark = text_.LastMark(first + line.first, first + line.end);
        if (mark == kNone) return kNone;
        const size_t unit = mark - first;
        if (unit < line.headEnd) return unit - line.first;
        if (!line.dots || unit < line.tail) return kNone;
        return unit - line.tail + line.headEnd - line.first + kEllipsis.size();
    }

    const FormatSettings& format_;
    const std::u16string_view source_;
    std::u16string digitStorage_;
    const std::u16string_view digits_;
    const gdi::PrefixText text_;
    const StringFace face_;
    const StringTabs tabs_;
    LinePlacer placer_;
    size_t fitted_ = 0;
};

}  // namespace

StringLayout LayOut(std::u16string_view text, const LayoutRequest& request) {
    return Composer(text, request).Run();
}

}  // namespace vxgui::gdiplus
