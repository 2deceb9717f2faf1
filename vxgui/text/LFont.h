#pragma once

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/ole.h"

namespace vxgui {

class GpFont;
class TextStyle;

enum FontQuality : uint8_t {
    DEFAULT_QUALITY = 0,
    DRAFT_QUALITY = 1,
    PROOF_QUALITY = 2,
    NONANTIALIASED_QUALITY = 3,
    ANTIALIASED_QUALITY = 4,
    CLEARTYPE_QUALITY = 5,
};

/// A logical font: plain values, and the font objects that are made of them on demand.
///
/// Writing a field never touches a handle that exists already. Who changes a font that has been
/// drawn with calls `Dispose`, or goes on drawing with the old one.
class VXGUI_API LFont : public Object {
public:
    int32_t Height = 12;      ///< below 0: of the characters; above 0: of the cell; pixels
    int32_t Width = 0;        ///< average character width, 0 for the font's own
    int32_t Escapement = 0;   ///< of the line, tenths of a degree
    int32_t Orientation = 0;  ///< of each character, tenths of a degree
    int32_t Weight = 400;
    uint8_t Italic = 0;
    uint8_t Underline = 0;
    uint8_t StrikeOut = 0;
    uint8_t CharSet = 1;
    uint8_t OutPrecision = 0;
    uint8_t ClipPrecision = 0;
    uint8_t Quality = DEFAULT_QUALITY;
    uint8_t PitchAndFamily = 0;
    String Name;  ///< the face; empty stands for the platform's user interface font
    Ref<TextStyle> DrawingStyle;

    LFont();

    /// Sets every field but `DrawingStyle`. The character set defaults to 0 here, and to 1 in a
    /// new object: both are meant.
    void Create(const String& name, int32_t height = 12, int32_t width = 0, int32_t escapement = 0,
                int32_t orientation = 0, int32_t weight = 400, uint8_t italic = 0,
                uint8_t underline = 0, uint8_t strikeOut = 0, uint8_t charSet = 0,
                uint8_t outPrecision = 0, uint8_t clipPrecision = 0, uint8_t quality = 0,
                uint8_t pitchAndFamily = 0);
    /// Reads a section of a define file; with "DrawingStyle" above 0, a text style from the same.
    void FromIniFile(const Ref<core7::DefineFile>& defineFile, const String& sectionName);
    void FromLogFont(const gdi::LOGFONTA& font);
    /// None stands for the platform's user interface font.
    void FromStdFont(const Ref<ole::StdFont>& font, uint8_t quality = DEFAULT_QUALITY);
    void DefaultGuiFont(uint8_t quality = DEFAULT_QUALITY);

    /// A copy of the fields, without `DrawingStyle` and without handles.
    Ref<LFont> Clone() const;
    /// A new standard font of these values. The font follows changes of the latest one it gave.
    Ref<ole::StdFont> StdFont();
    /// The height in points at the screen's resolution. Setting it drops the handles and the
    /// width.
    float SIZE() const;
    void SIZE(float points);
    /// Compares every field but `DrawingStyle`; false for none.
    bool Equal(const Ref<LFont>& other) const;
    /// A handle for drawing, made on first use and the object's own.
    gdi::HFONT hFont();
    /// A font of the flat drawing layer, made on first use and kept until `Dispose`.
    Ref<class GpFont> GpFont();
    /// Drops the handles; may be called at any time.
    void Dispose();

    /// A number outside 0 to 255 for a byte field raises the overflow error. A handle stays in
    /// force.
    void ReadProperties(const Ref<ole::PropertyBag>& propBag);
    void WriteProperties(const Ref<ole::PropertyBag>& propBag) const;

protected:
    ~LFont() override;

private:
    void Follow(const String& propertyName);
    void Unwatch();

    gdi::HFONT font_ = nullptr;
    bool stock_ = false;  ///< `font_` is the platform's and isn't ours to delete
    Ref<class GpFont> gpFont_;
    Ref<ole::StdFont> watched_;
};

}  // namespace vxgui
