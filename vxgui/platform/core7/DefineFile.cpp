#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/platform/core7/define/Decoding.h"
#include "vxgui/platform/core7/define/Parser.h"

namespace vxgui::core7 {
namespace {

class ParsedDefineFile final : public DefineFile {
public:
    String GetString(const String& section, const String& key, const String& fallback) override {
        const DefineStore::Entry* entry = parsed_.store.Find(section, key);
        return entry ? entry->value : fallback;
    }
    int32_t GetInteger(const String& section, const String& key, const String& fallback) override {
        return RoundHalfEven(GetNumber(section, key, fallback));
    }
    double GetNumber(const String& section, const String& key, const String& fallback) override {
        return LeadingNumber(GetString(section, key, fallback));
    }

    std::vector<String> SectionNames() override {
        std::vector<String> names;
        for (const auto& section : parsed_.store.Sections()) {
            if (section.position.line > 0) names.push_back(section.name);
        }
        return names;
    }
    std::vector<String> KeyNames(const String& section) override {
        std::vector<String> names;
        const DefineStore::Section* found = parsed_.store.Find(section);
        if (!found) return names;
        for (const auto& entry : found->entries) names.push_back(entry.name);
        return names;
    }

    bool OpenFile(const String& path) override;
    bool LoadText(const String& text) override {
        path_ = {};
        return Keep(ParseDefineText(text.view(), ApartmentDefineLimits()));
    }

    String Path() const override { return path_; }
    const std::vector<DefineProblem>& Problems() const override { return parsed_.problems; }
    DefinePosition PositionOf(const String& section, const String& key) const override {
        const DefineStore::Entry* entry = parsed_.store.Find(section, key);
        return entry ? entry->position : DefinePosition();
    }
    DefinePosition PositionOf(const String& section) const override {
        const DefineStore::Section* found = parsed_.store.Find(section);
        return found ? found->position : DefinePosition();
    }

private:
    bool Keep(ParsedDefine parsed) {
        parsed_ = std::move(parsed);
        return parsed_.readable;
    }
    bool KeepNothing(const String& why) { return Keep({{}, {{0, 0, why}}, false}); }

    String path_;
    ParsedDefine parsed_;
};

bool ParsedDefineFile::OpenFile(const String& path) {
    path_ = path;
    const DefineLimits limits = ApartmentDefineLimits();
    ByteArray bytes;
    if (!ReadWholeFile(path, &bytes, limits.bytes)) {
        return KeepNothing(CreateSystemInformation()->ErrorText(kernel::GetLastError()));
    }
    const DecodedText decoded = DecodeDefineBytes(bytes);
    ParsedDefine parsed = ParseDefineText(decoded.text, limits);
    if (decoded.malformed) {
        parsed.problems.insert(
            parsed.problems.begin(),
            {0, 0, "not all of the file is the Unicode text that it says it is"});
    }
    return Keep(std::move(parsed));
}

// "number" and a colon, nothing for a number that isn't known.
String Place(int32_t number) { return number > 0 ? String::FromInt(number) + ":" : String(); }

}  // namespace

Ref<DefineFile> CreateDefineFile() { return New<ParsedDefineFile>(); }

String DescribeProblem(const String& path, const DefineProblem& problem) {
    const String place =
        (path.empty() ? path : path + ":") + Place(problem.line) + Place(problem.column);
    return place.empty() ? problem.text : place + " " + problem.text;
}

}  // namespace vxgui::core7
