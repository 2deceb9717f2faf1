#include <cstring>
#include <new>

#include "vxgui/platform/gdi/Font.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {

HFONT CreateFontIndirectA(const LOGFONTA* font) try {
    if (!font) return nullptr;
    const GdiRef<Font> entered = Enter(std::make_unique<Font>(*font));
    return entered ? static_cast<HFONT>(entered->Handle()) : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                  DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, const char* faceName) {
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWidth = width;
    font.lfEscapement = escapement;
    font.lfOrientation = orientation;
    font.lfWeight = weight;
    font.lfItalic = static_cast<BYTE>(italic);
    font.lfUnderline = static_cast<BYTE>(underline);
    font.lfStrikeOut = static_cast<BYTE>(strikeOut);
    font.lfCharSet = static_cast<BYTE>(charSet);
    font.lfOutPrecision = static_cast<BYTE>(outPrecision);
    font.lfClipPrecision = static_cast<BYTE>(clipPrecision);
    font.lfQuality = static_cast<BYTE>(quality);
    font.lfPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
    if (faceName) std::strncpy(font.lfFaceName, faceName, sizeof font.lfFaceName - 1);
    return CreateFontIndirectA(&font);
}

}  // namespace vxgui::gdi
