#pragma once

#include <memory>
#include <string>

#include "vxgui/base/Variant.h"

namespace vxgui::gdiplus {

/// A font file of a private collection, kept in memory under a path of this process alone:
/// fontconfig and FreeType read files, and the caller's may be gone before they do.
class FontFile {
public:
    /// None when memory is out.
    static std::shared_ptr<const FontFile> Make(const void* data, size_t size);
    ~FontFile();
    FontFile(const FontFile&) = delete;
    FontFile& operator=(const FontFile&) = delete;

    std::string Path() const;

private:
    explicit FontFile(int descriptor) : descriptor_(descriptor) {}

    const int descriptor_;
};

}  // namespace vxgui::gdiplus
