#include "vxgui/theme/lint/Page.h"

#include <algorithm>

#include "vxgui/theme/lint/NearestName.h"
#include "vxgui/theme/lint/ValueCheck.h"

namespace vxgui::lint {
namespace {

const KeyRule* FindIn(const std::vector<KeyTable>& tables, const String& key) {
    for (const KeyTable& table : tables)
        if (const KeyRule* rule = FindKey(table, key)) return rule;
    return nullptr;
}

String NearestKey(const std::vector<KeyTable>& tables, const String& key) {
    std::vector<String> names;
    for (const KeyTable& table : tables)
        for (const KeyRule& rule : table) names.push_back(rule.name);
    return NearestName(key, names);
}

}  // namespace

String Describe(const Finding& finding) {
    return finding.path + ":" + String::FromInt(finding.line) + ":" +
           String::FromInt(finding.column) +
           (finding.severity == Severity::Error ? ": error: " : ": warning: ") + finding.text;
}

Page::Page(const String& path) : path_(path), file_(core7::CreateDefineFile()) {
    open_ = file_->OpenFile(path);
    for (const core7::DefineProblem& problem : file_->Problems())
        Add(Severity::Error, {problem.line, problem.column}, problem.text);
    if (!open_ && findings_.empty()) Fail("can't be read");
}

String Page::Folder() const {
    const String folder = core7::ThePathService().TheFileSystem().GetParentFolderName(path_);
    return folder.empty() ? String(".") : folder;
}

void Page::Add(Severity severity, core7::DefinePosition at, const String& text) {
    findings_.push_back({severity, path_, std::max(at.line, 1), std::max(at.column, 1), text});
}

void Page::WarnAt(const String& section, const String& text) {
    Add(Severity::Warning, file_->PositionOf(section), text);
}
void Page::WarnAt(const String& section, const String& key, const String& text) {
    Add(Severity::Warning, file_->PositionOf(section, key), text);
}
void Page::WarnOfPlace(const String& section, const String& key, const String& name) {
    WarnAt(section, key,
           Quoted(name) +
               " lies outside the folder of the skin; where skins are kept to their folders, as "
               "this tool keeps them, it counts as missing");
}
void Page::FailAt(const String& section, const String& text) {
    Add(Severity::Error, file_->PositionOf(section), text);
}
void Page::FailAt(const String& section, const String& key, const String& text) {
    Add(Severity::Error, file_->PositionOf(section, key), text);
}
void Page::Fail(const String& text) { Add(Severity::Error, {1, 1}, text); }

void Page::CheckLooseKeys() {
    for (const String& key : file_->KeyNames(""))
        WarnAt("", key,
               "the key " + Quoted(key) + " stands before the first section; nothing reads it");
}

void Page::CheckKeys(const String& section, const std::vector<KeyTable>& known, KeyTable others) {
    for (const String& key : file_->KeyNames(section)) {
        const KeyRule* rule = FindIn(known, key);
        if (!rule) {
            AddUnknownKey(section, key, known, others);
        } else if (const auto verdict = CheckValue(*rule, Text(section, key))) {
            Add(verdict->severity, file_->PositionOf(section, key),
                String(rule->name) + ": " + verdict->text);
        }
    }
}

void Page::AddUnknownKey(const String& section, const String& key,
                         const std::vector<KeyTable>& known, KeyTable others) {
    const String unknown = "unknown key " + Quoted(key);
    const String nearest = NearestKey(known, key);
    if (!nearest.empty())
        return WarnAt(section, key, unknown + "; did you mean " + Quoted(nearest) + "?");
    const bool elsewhere = FindKey(others, key);
    WarnAt(section, key, unknown + (elsewhere ? "; it is one of the other dialect" : ""));
}

void Page::CheckSomeKeys(const String& section, KeyTable known) {
    for (const String& key : file_->KeyNames(section)) {
        if (!FindKey(known, key) && !NearestKey({known}, key).empty())
            AddUnknownKey(section, key, {known}, {});
    }
}

}  // namespace vxgui::lint
