#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "tools/view/SkinFiles.h"

namespace vxgui::view {

/// Watches the files of a skin by looking at their sizes and times again and again: that also sees
/// files that an editor replaces, that come later, or that lie on another machine. One save is
/// often several writes, so that a change is told when the files have been quiet for a while.
class SkinWatch {
public:
    using Time = std::chrono::milliseconds;

    static constexpr Time kQuiet{120};
    /// Who writes without end is told of all the same.
    static constexpr Time kLongest{1000};

    struct Change {
        bool defines = false;
        bool pictures = false;

        explicit operator bool() const { return defines || pictures; }
    };

    /// Begins anew with these files as they now are.
    void Watch(const SkinFiles& files);
    /// Looks at the files. `now` is any clock's that runs forward.
    Change Look(Time now);

private:
    struct Stamp {
        bool exists = false;
        uintmax_t size = 0;
        std::filesystem::file_time_type time{};

        friend bool operator==(const Stamp&, const Stamp&) = default;
    };
    struct Watched {
        Stamp stamp;
        bool isPicture;
    };
    static Stamp StampOf(const std::string& path);
    bool SeeChanges();

    std::map<std::string, Watched> files_;
    Change seen_;  ///< and not yet told
    Time first_{}, last_{};
};

}  // namespace vxgui::view
