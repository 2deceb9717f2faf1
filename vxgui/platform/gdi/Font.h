#pragma once

#include <algorithm>

#include "vxgui/platform/gdi/GdiObject.h"
#include "vxgui/platform/gdi/Record.h"

namespace vxgui::gdi {

/// A logical font.
class Font : public GdiObject {
public:
    static constexpr GdiKind kKind = GdiKind::Font;

    explicit Font(const LOGFONTA& record) : GdiObject(kKind), record_(record) {}

    const LOGFONTA& Description() const { return record_; }
    /// A font's record may be cut: a smaller buffer gets the first `size` bytes.
    int Record(int size, void* buffer) const override {
        if (!buffer) return sizeof(LOGFONTA);
        const int copied = std::clamp(size, 0, static_cast<int>(sizeof(LOGFONTA)));
        std::memcpy(buffer, &record_, static_cast<size_t>(copied));
        return copied;
    }

private:
    const LOGFONTA record_;
};

}  // namespace vxgui::gdi
