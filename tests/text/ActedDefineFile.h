#pragma once

#include <map>
#include <vector>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/platform/core7_define.h"

namespace vxgui::test {

/// A define file of one section, "S", that notes what is read: "text", "integer" or "number", the
/// key, and the default that came with it.
class ActedDefineFile : public core7::DefineFile {
public:
    std::map<String, String> values;
    std::vector<std::string> reads;

    String GetString(const String& section, const String& key, const String& fallback) override {
        return Read("text", section, key, fallback);
    }
    int32_t GetInteger(const String& section, const String& key, const String& fallback) override {
        return RoundHalfEven(LeadingNumber(Read("integer", section, key, fallback)));
    }
    double GetNumber(const String& section, const String& key, const String& fallback) override {
        return LeadingNumber(Read("number", section, key, fallback));
    }
    std::vector<String> SectionNames() override { return {"S"}; }
    std::vector<String> KeyNames(const String&) override { return {}; }
    bool OpenFile(const String&) override { return false; }
    bool LoadText(const String&) override { return false; }
    String Path() const override { return {}; }
    const std::vector<core7::DefineProblem>& Problems() const override { return problems_; }
    core7::DefinePosition PositionOf(const String&, const String&) const override { return {}; }
    core7::DefinePosition PositionOf(const String&) const override { return {}; }

protected:
    ~ActedDefineFile() override = default;

private:
    String Read(const char* kind, const String& section, const String& key,
                const String& fallback) {
        reads.push_back(std::string(kind) + " " + key.Utf8() + " " + fallback.Utf8());
        const auto found = values.find(key);
        return section == String("S") && found != values.end() ? found->second : fallback;
    }

    std::vector<core7::DefineProblem> problems_;
};

}  // namespace vxgui::test
