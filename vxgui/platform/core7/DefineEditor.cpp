#include <utility>

#include "vxgui/base/Utf.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7/define/Composing.h"
#include "vxgui/platform/core7/define/Decoding.h"
#include "vxgui/platform/core7/define/Lines.h"

namespace vxgui::core7 {
namespace {

using Kind = DefineLine::Kind;
using Units = std::u16string;
using View = std::u16string_view;

constexpr DWORD kInvalidData = 13;  // the system's code for it

class TextDefineEditor final : public DefineEditor {
public:
    bool OpenFile(const String& path) override;
    void LoadText(const String& text) override { text_ = text.units(); }
    void SetString(const String& section, const String& key, const String& value) override;
    String Text() const override { return text_; }
    bool Save(const String& path) override {
        const std::string bytes = Utf8FromUtf16(text_);
        return WriteWholeFile(path, bytes.data(), bytes.size());
    }

private:
    // Where the key's line stands, or else where a new one goes.
    struct Place {
        View line;       ///< in `text_`; null when the key has none
        size_t end = 0;  ///< of the last line that says something in the section
        bool hasSection = false;
    };
    Place Find(const String& section, const String& key) const;

    size_t EndOf(View line) const {
        return static_cast<size_t>(line.data() - text_.data()) + line.size();
    }
    Units NewLine() const { return text_.find(u"\r\n") == text_.npos ? u"\n" : u"\r\n"; }
    void Append(const Units& header, const Units& statement);

    Units text_;
};

bool TextDefineEditor::OpenFile(const String& path) {
    ByteArray bytes;
    if (!ReadWholeFile(path, &bytes, ApartmentDefineLimits().bytes)) return false;
    DecodedText decoded = DecodeDefineBytes(bytes);
    if (decoded.malformed) {  // saving would make the damage final
        kernel::SetLastError(kInvalidData);
        return false;
    }
    text_ = std::move(decoded.text);
    return true;
}

TextDefineEditor::Place TextDefineEditor::Find(const String& section, const String& key) const {
    bool inside = section.empty();
    Place place;
    place.hasSection = inside;
    DefineLineReader lines(text_);
    for (View line; lines.Next(&line);) {
        const DefineLine read = ScanDefineLine(line);
        if (read.kind == Kind::kSection) inside = section.EqualsNoCase(read.name);
        if (read.kind == Kind::kNothing || !inside) continue;
        place.hasSection = true;
        place.end = EndOf(line);
        if (read.kind == Kind::kKey && key.EqualsNoCase(read.name)) {
            place.line = line;
            break;
        }
    }
    return place;
}

void TextDefineEditor::SetString(const String& section, const String& key, const String& value) {
    const Place place = Find(section, key);
    if (place.line.data()) {
        const Units changed =
            ComposeKey(BeforeValue(place.line), ScanDefineLine(place.line).name, value);
        text_.replace(place.end - place.line.size(), place.line.size(), changed);
        return;
    }
    const Units added = ComposeKey(key.units() + u'=', key.view(), value);
    if (!place.hasSection)
        Append(ComposeSection(section), added);
    else if (place.end == 0)
        text_.insert(0, added + NewLine());
    else
        text_.insert(place.end, NewLine() + added);
}

void TextDefineEditor::Append(const Units& header, const Units& statement) {
    const Units newLine = NewLine();
    if (!text_.empty() && !text_.ends_with(newLine)) text_ += newLine;
    if (!text_.empty()) text_ += newLine;
    text_ += header + newLine + statement + newLine;
}

}  // namespace

Ref<DefineEditor> CreateDefineEditor() { return New<TextDefineEditor>(); }

}  // namespace vxgui::core7
