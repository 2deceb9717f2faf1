#pragma once

#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "vxgui/platform/core7.h"

namespace vxgui::test {

/// A define file with one value for each key, which remembers what it was asked for, and with
/// which values for what isn't there.
class AskedFile : public core7::DefineFile {
public:
    explicit AskedFile(std::map<std::string, std::string> values) : values_(std::move(values)) {}

    String GetString(const String&, const String& key, const String& fallback) override {
        asked[key.Utf8()].insert(fallback.Utf8());
        const auto found = values_.find(key.Utf8());
        return found == values_.end() ? fallback : String(found->second);
    }
    int32_t GetInteger(const String& section, const String& key, const String& fallback) override {
        return std::atoi(GetString(section, key, fallback).Utf8().c_str());
    }
    double GetNumber(const String& section, const String& key, const String& fallback) override {
        return GetInteger(section, key, fallback);
    }
    std::vector<String> SectionNames() override { return {}; }
    std::vector<String> KeyNames(const String&) override { return {}; }
    bool OpenFile(const String&) override { return true; }
    bool LoadText(const String&) override { return true; }
    String Path() const override { return {}; }
    const std::vector<core7::DefineProblem>& Problems() const override { return problems_; }
    core7::DefinePosition PositionOf(const String&, const String&) const override { return {}; }
    core7::DefinePosition PositionOf(const String&) const override { return {}; }

    std::map<std::string, std::set<std::string>> asked;

private:
    std::map<std::string, std::string> values_;
    std::vector<core7::DefineProblem> problems_;
};

}  // namespace vxgui::test
