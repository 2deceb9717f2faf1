#pragma once

#include <memory>

#include "vxgui/platform/gdiplus/FlatObject.h"
#include "vxgui/platform/gdiplus/text/FontSource.h"

namespace vxgui::gdiplus {

/// What a family handle names.
class FontFamily final : public FlatObject {
public:
    /// `info` is one of the source's.
    FontFamily(std::shared_ptr<const FontSource> source, const FamilyInfo& info)
        : source(std::move(source)), info(info) {}

    const std::shared_ptr<const FontSource> source;
    const FamilyInfo& info;
};

/// The family of a source's `info`, or none for null.
inline Ref<FontFamily> FamilyOf(const std::shared_ptr<const FontSource>& source,
                                const FamilyInfo* info) {
    return info ? New<FontFamily>(source, *info) : nullptr;
}

}  // namespace vxgui::gdiplus
