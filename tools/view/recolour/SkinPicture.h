#pragma once

#include <string>

#include "tools/view/recolour/Recolour.h"
#include "tools/vxgui/PictureKind.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::view {

/// A picture of a skin as it was read, from which it is written in other colours any number of
/// times.
class VXGUI_LOCAL SkinPicture {
public:
    /// Reads a file. One that can't be read is kept byte for byte. `background` is what its reader
    /// sets translucent pixels on, a COLORREF, where the form has no alpha channel of its own.
    SkinPicture(const std::string& path, KeyColours keys, int32_t background);

    /// What its form adds to the name: forms that can't be written become BMP.
    std::string AddedEnding() const;
    /// A `ToolError` when it can't be written.
    void Write(const std::string& path, const Recolour& how) const;

private:
    enum class Way { AsItIs, InPlace, Png, Tga, NewBmp };

    void WriteBytes(const std::string& path, const ByteArray& bytes) const;
    Ref<cAlphaDIBSection> Recoloured(const Recolour& how) const;

    KeyColours keys_;
    Way way_ = Way::AsItIs;
    ByteArray bytes_;
    Ref<cAlphaDIBSection> picture_;  ///< with straight alpha; none for bytes that stay a file
};

}  // namespace vxgui::view
