#pragma once

#include <memory>
#include <optional>

#include "tools/view/recolour/SkinOriginal.h"
#include "vxgui/theme/lint/PictureShelf.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::view {

/// A line about a skin: `file:line:column: error: text`.
struct SkinMessage {
    bool isError;
    std::string text;
};

/// A skin that is read again and again while its author works on it. An edit that can't be read
/// leaves the last one that could.
class VXGUI_LOCAL LastGoodSkin {
public:
    explicit LastGoodSkin(std::string path) : path_(std::move(path)) {}

    const std::string& Path() const { return path_; }
    /// Reads the skin, and what the linter says of it. False when the former one stays. Pictures
    /// that haven't changed aren't checked again.
    bool Reload(bool picturesChanged = true);
    /// None until a skin could be read.
    const Skin* Get() const { return skin_ ? &*skin_ : nullptr; }
    /// Whether `Get` is what the files now hold.
    bool IsCurrent() const { return current_; }
    const std::vector<SkinMessage>& Messages() const { return messages_; }
    size_t ErrorCount() const;

    const Recolour& Colours() const { return colours_; }
    /// Shows the skin in other colours, from its own ones each time. False, with a message, when
    /// that fails.
    bool Colours(const Recolour& colours);
    /// Saves what is shown as a new skin in an empty or new folder and answers the path to load it
    /// by. A `ToolError` says why it can't be.
    std::string Save(const std::string& folder) const;

private:
    void Check();
    bool Load();
    void AddLines(const std::string& lines);

    const std::string path_;
    std::optional<Skin> skin_;
    std::unique_ptr<SkinOriginal> original_;  ///< of the last good one
    Recolour colours_;
    bool current_ = false;
    std::vector<SkinMessage> messages_;
    lint::PictureShelf shelf_;
};

}  // namespace vxgui::view
