#pragma once

#include <vector>

#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

/// What a scale may be, of a skin as it is painted and of a strip that is supplied for it.
constexpr double kSmallestScale = 0.25, kLargestScale = 16;

/// A strip that shows the frames of another, drawn at another scale.
struct StripAtScale {
    double scale;
    Ref<cAlphaDIBSection> strip;
};

/// The strips that a skin supplies beside one for scale 1. They belong to that strip: when the
/// item gets another, these no longer count.
class VXGUI_LOCAL StripScales {
public:
    /// Takes the place of a strip of the same scale.
    void Add(const Ref<cAlphaDIBSection>& base, double scale, const Ref<cAlphaDIBSection>& strip);
    /// The strip of the smallest scale that isn't below the factor, else that of the largest.
    Ref<cAlphaDIBSection> BestFor(const Ref<cAlphaDIBSection>& base, double factor) const;
    /// From the smallest scale to the largest, without that of scale 1.
    std::vector<StripAtScale> Of(const Ref<cAlphaDIBSection>& base) const;

private:
    Ref<cAlphaDIBSection> base_;
    std::vector<StripAtScale> strips_;
};

/// The name of a strip's file at a scale: "controls/button.png" and 1.5 give
/// "controls/button@1.5x.png".
VXGUI_LOCAL String NameAtScale(const String& name, double scale);

/// The scales in a list like "1.5, 2", without those that can't be, 1 among them.
VXGUI_LOCAL std::vector<double> ScalesIn(const String& list);

}  // namespace vxgui
