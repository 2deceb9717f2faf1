#pragma once

#include <mutex>

#include "vxgui/platform/gdiplus/text/FontFamily.h"

namespace vxgui::gdiplus {

/// What a collection handle names: the system's families, or none to begin with. Fonts that are
/// added stay its own, and of two families with one name its own comes first.
class FontCollection final : public FlatObject {
public:
    explicit FontCollection(bool installed) : installed_(installed) {}

    /// False when the data is no outline font.
    bool Add(const void* data, size_t size);
    Ref<FontFamily> Find(std::u16string_view name) const;
    size_t Count() const;
    /// Handles of the families from the first on. They are the collection's: asked again, it gives
    /// the same ones, as far as nobody has deleted them.
    size_t List(GpFontFamily** families, size_t room);

protected:
    ~FontCollection() override;

private:
    std::shared_ptr<const FontSource> Own() const;

    const bool installed_;
    mutable std::mutex mutex_;
    std::vector<std::shared_ptr<const FontFile>> files_;
    std::shared_ptr<const FontSource> own_;
    std::vector<void*> handles_;
};

}  // namespace vxgui::gdiplus
