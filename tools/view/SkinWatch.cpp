#include "tools/view/SkinWatch.h"

#include <utility>

namespace vxgui::view {

void SkinWatch::Watch(const SkinFiles& files) {
    files_.clear();
    seen_ = {};
    for (const std::string& path : files.pictures) files_[path] = {StampOf(path), true};
    for (const std::string& path : files.defines) files_[path] = {StampOf(path), false};
}

SkinWatch::Stamp SkinWatch::StampOf(const std::string& path) {
    std::error_code failed;
    const auto time = std::filesystem::last_write_time(path, failed);
    if (failed) return {};
    const uintmax_t size = std::filesystem::file_size(path, failed);
    return {true, failed ? 0 : size, time};
}

bool SkinWatch::SeeChanges() {
    bool any = false;
    for (auto& [path, watched] : files_) {
        const Stamp stamp = StampOf(path);
        if (stamp == watched.stamp) continue;
        watched.stamp = stamp;
        (watched.isPicture ? seen_.pictures : seen_.defines) = any = true;
    }
    return any;
}

SkinWatch::Change SkinWatch::Look(Time now) {
    const bool known{seen_};
    if (SeeChanges()) last_ = now;
    if (!seen_) return {};
    if (!known) first_ = now;
    if (now - last_ < kQuiet && now - first_ < kLongest) return {};
    return std::exchange(seen_, {});
}

}  // namespace vxgui::view
