#pragma once

#include "vxgui/theme/ThemeItem.h"
#include "vxgui/theme/lint/Page.h"
#include "vxgui/theme/lint/PictureShelf.h"

namespace vxgui::lint {

/// The keys that describe a strip in one dialect; null for what it has no key for.
struct StripKeys {
    const char* what;  ///< for people
    const char* image;
    const char* frames;
    const char* vertical;
    const char* order;
    const char* scales;
    bool absolute;  ///< whether an absolute path of a picture stands for itself
};

/// A section's picture and its frames under check.
class VXGUI_LOCAL StripLint {
public:
    StripLint(Page& page, const String& section, const StripKeys& keys)
        : page_(page), section_(section), keys_(keys) {}

    /// Looks at the picture; `fallback` is its name where the section has none. `missing` is what
    /// else to say of one that isn't there.
    void Look(PictureShelf& shelf, const String& folder, const String& fallback,
              const char* missing);
    /// Checks the number of frames against the picture.
    void CheckFrames(int32_t frames);
    /// Checks the strips for other scales; call it when the frames have been checked.
    void CheckScales(PictureShelf& shelf);
    /// Checks which frames the states show; `frameOf` answers the frame of a state.
    template <class FrameOf>
    void CheckShown(FrameOf frameOf) {
        std::vector<bool> shown(static_cast<size_t>(frames_));
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            const int32_t frame = frameOf(state);
            if (frame >= 0 && frame < frames_) shown[static_cast<size_t>(frame)] = true;
        }
        ReportUnseen(shown);
    }
    /// Whether a list of frames names one that the strip hasn't; that is told.
    bool OrderIsBeyond();

    bool IsNamed() const { return named_; }
    /// Whether picture and frames are such that more can be said.
    bool IsWhole() const { return whole_; }
    int32_t Frames() const { return frames_; }
    /// The size of one frame.
    int32_t Width() const { return facts_.width / (vertical_ ? 1 : frames_); }
    int32_t Height() const { return facts_.height / (vertical_ ? frames_ : 1); }

private:
    bool Names(const char* key) const { return key && page_.Has(section_, key); }
    void FailAtFrames(const String& text);
    void CheckScale(const PictureFacts& facts, const String& name, double scale);
    void ReportUnseen(const std::vector<bool>& shown);

    Page& page_;
    const String section_;
    const StripKeys keys_;
    PictureFacts facts_;
    String folder_;
    String name_;  ///< of the picture
    bool named_ = false;
    bool readable_ = false;
    bool whole_ = false;
    bool vertical_ = false;
    int32_t frames_ = 0;
};

}  // namespace vxgui::lint
