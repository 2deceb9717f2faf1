#include "vxgui/theme/StripScales.h"

#include <algorithm>
#include <cstdio>

#include "vxgui/base/NumberText.h"

namespace vxgui {
namespace {

// As an author writes it: without zeros at the end, and with a point in every locale.
std::string ScaleText(double scale) {
    const int thousandths = static_cast<int>(scale * 1000 + 0.5);
    char text[16];
    std::snprintf(text, sizeof text, "%d.%03d", thousandths / 1000, thousandths % 1000);
    std::string trimmed = text;
    trimmed.erase(trimmed.find_last_not_of('0') + 1);
    if (trimmed.back() == '.') trimmed.pop_back();
    return trimmed;
}

}  // namespace

void StripScales::Add(const Ref<cAlphaDIBSection>& base, double scale,
                      const Ref<cAlphaDIBSection>& strip) {
    if (base != base_) strips_.clear();
    base_ = base;
    std::erase_if(strips_, [&](const StripAtScale& entry) { return entry.scale == scale; });
    const auto place = std::ranges::find_if(
        strips_, [&](const StripAtScale& entry) { return entry.scale > scale; });
    strips_.insert(place, {scale, strip});
}

std::vector<StripAtScale> StripScales::Of(const Ref<cAlphaDIBSection>& base) const {
    return base && base == base_ ? strips_ : std::vector<StripAtScale>();
}

Ref<cAlphaDIBSection> StripScales::BestFor(const Ref<cAlphaDIBSection>& base, double factor) const {
    StripAtScale best{1, base};
    for (const StripAtScale& entry : Of(base)) {
        const bool nearer =
            entry.scale >= factor && (best.scale < factor || entry.scale < best.scale);
        const bool larger = best.scale < factor && entry.scale > best.scale;
        if (nearer || larger) best = entry;
    }
    return best.strip;
}

String NameAtScale(const String& name, double scale) {
    const size_t dot = name.view().find_last_of(u'.');
    const size_t separator = name.view().find_last_of(u"/\\");
    const bool ending = dot != String::npos && (separator == String::npos || dot > separator);
    const size_t end = ending ? dot : name.size();
    return name.Left(end) + "@" + ScaleText(scale) + "x" + name.Mid(end);
}

std::vector<double> ScalesIn(const String& list) {
    std::vector<double> scales;
    if (list.empty()) return scales;
    for (const String& part : list.Split(u',')) {
        const double scale = LeadingNumber(part);
        if (scale >= kSmallestScale && scale <= kLargestScale && scale != 1)
            scales.push_back(scale);
    }
    return scales;
}

}  // namespace vxgui
