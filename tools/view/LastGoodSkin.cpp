#include "tools/view/LastGoodSkin.h"

#include <algorithm>
#include <sstream>

#include "tools/view/recolour/RecolouredSkin.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/StyleModule.h"
#include "vxgui/theme/lint/CheckSkin.h"

namespace vxgui::view {

bool LastGoodSkin::Reload(bool picturesChanged) {
    if (picturesChanged) shelf_ = {};
    messages_.clear();
    Check();
    current_ = Load();
    return current_;
}

// The skin is read as it stands first: what is wrong with it is told with its own lines.
bool LastGoodSkin::Load() try {
    Skin skin = LoadSkin(path_);
    std::unique_ptr<SkinOriginal> original = OriginalOf(path_);
    if (!colours_.IsNone()) skin = LoadRecoloured(*original, colours_);
    skin.path = path_;
    skin_ = std::move(skin);
    original_ = std::move(original);
    return true;
} catch (const std::exception& error) {
    AddLines(error.what());
    return false;
}

bool LastGoodSkin::Colours(const Recolour& colours) try {
    if (!original_) return false;
    skin_ = LoadRecoloured(*original_, colours);
    skin_->path = path_;
    colours_ = colours;
    return true;
} catch (const std::exception& error) {
    AddLines(error.what());
    return false;
}

std::string LastGoodSkin::Save(const std::string& folder) const {
    if (!original_) tool::Fail(path_, "it could never be read, so there is nothing to save");
    return SaveRecoloured(*original_, colours_, folder);
}

// A style of a module has no lines that could be told.
void LastGoodSkin::Check() {
    if (IsStyleReference(path_)) return;
    for (const lint::Finding& finding : lint::CheckSkin(path_, shelf_)) {
        messages_.push_back(
            {finding.severity == lint::Severity::Error, lint::Describe(finding).Utf8()});
    }
}

// What the linter found at the same place is said better there.
void LastGoodSkin::AddLines(const std::string& lines) {
    const auto placeOf = [](const std::string& line) { return line.substr(0, line.find(": ")); };
    std::istringstream all(lines);
    for (std::string line; std::getline(all, line);) {
        const bool known = std::ranges::any_of(messages_, [&](const SkinMessage& message) {
            return message.isError && placeOf(message.text) == placeOf(line);
        });
        if (!known) messages_.push_back({true, line});
    }
}

size_t LastGoodSkin::ErrorCount() const {
    return static_cast<size_t>(std::ranges::count(messages_, true, &SkinMessage::isError));
}

}  // namespace vxgui::view
