#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/Golden.h"
#include "tests/text/WideKernel.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/text/LFont.h"

namespace vxgui::test {

/// A white picture of a host, with its context and a font selected.
class TextCanvas {
public:
    TextCanvas(int width, int height, int fontHeight = -14)
        : picture{width, height, std::vector<uint32_t>(size_t(width) * height, 0xFFFFFFFF)},
          dc(gdi::CreateHostDC({picture.pixels.data(), width, height, width * 4, false})) {
        font->Create("DejaVu Sans", fontHeight);
        font->Quality = ANTIALIASED_QUALITY;
        gdi::SelectObject(dc, font->hFont());
    }
    ~TextCanvas() { gdi::DeleteDC(dc); }
    TextCanvas(const TextCanvas&) = delete;
    TextCanvas& operator=(const TextCanvas&) = delete;

    uint32_t Colour(int x, int y) const { return picture.At(x, y) & 0xFFFFFF; }
    bool IsBlank() const {
        return std::all_of(picture.pixels.begin(), picture.pixels.end(),
                           [](uint32_t pixel) { return (pixel & 0xFFFFFF) == 0xFFFFFF; });
    }
    int Count(uint32_t colour) const {
        return static_cast<int>(
            std::count_if(picture.pixels.begin(), picture.pixels.end(),
                          [colour](uint32_t pixel) { return (pixel & 0xFFFFFF) == colour; }));
    }
    /// Drawing leaves the alpha byte in many states, of which a host shows none.
    void ExpectGolden(const std::string& name) {
        for (uint32_t& pixel : picture.pixels) pixel |= 0xFF000000;
        test::ExpectGolden(name, picture);
    }

    TestPicture picture;
    gdi::HDC dc;
    Ref<LFont> font = New<LFont>();
};

/// One of the four wide calls, as it came to the platform.
struct WideCall {
    std::string name;
    std::u16string text;
    int count = 0;
    gdi::RECT rect{};  ///< left and top only for a tabbed line
    UINT flags = 0;
    COLORREF color = 0;
    int extra = 0;
    int width = 0;  ///< of the line, with what the context spreads
};

/// The wide calls of a scope go to the platform and are written down.
class TextRecorder {
public:
    TextRecorder() : kernel_(2) {
        Calls().clear();
        ActedModule& user = kernel_.Add("user32");
        user.exports["DrawTextW"] = AsExport(&DrawTextW);
        user.exports["TabbedTextOutW"] = AsExport(&TabbedTextOutW);
        user.exports["GetTabbedTextExtentW"] = AsExport(&gdi::GetTabbedTextExtentW);
        kernel_.Add("gdi32").exports["ExtTextOutW"] = AsExport(&ExtTextOutW);
        kernel::SetKernel(&kernel_);
        UnbindAllStubs();
    }
    ~TextRecorder() {
        UnbindAllStubs();
        kernel::SetKernel(nullptr);
    }
    TextRecorder(const TextRecorder&) = delete;
    TextRecorder& operator=(const TextRecorder&) = delete;

    static std::vector<WideCall>& Calls() {
        static std::vector<WideCall> calls;
        return calls;
    }
    std::vector<WideCall>& calls = Calls();

private:
    static WideCall& Note(const char* name, gdi::HDC dc, const char16_t* text, int count) {
        const std::u16string copy = count < 0 ? std::u16string(text) : std::u16string(text, count);
        Calls().push_back(
            {name, copy, count, {}, 0, gdi::GetTextColor(dc), gdi::GetTextCharacterExtra(dc), 0});
        return Calls().back();
    }
    static int DrawTextW(gdi::HDC dc, char16_t* text, int count, gdi::RECT* rect, UINT flags) {
        WideCall& call = Note(flags & gdi::DT_CALCRECT ? "measure" : "draw", dc, text, count);
        call.rect = *rect;
        call.flags = flags;
        return gdi::DrawTextW(dc, text, count, rect, flags);
    }
    static BOOL ExtTextOutW(gdi::HDC dc, int x, int y, UINT options, const gdi::RECT* rect,
                            const char16_t* text, UINT count, const int* advances) {
        WideCall& call = Note("line", dc, text, static_cast<int>(count));
        call.rect = *rect;
        call.flags = options;
        return gdi::ExtTextOutW(dc, x, y, options, rect, text, count, advances);
    }
    static LONG TabbedTextOutW(gdi::HDC dc, int x, int y, const char16_t* text, int count,
                               int tabCount, const int* tabs, int origin) {
        WideCall& call = Note("tabbed", dc, text, count);
        call.rect = {x, y, origin, 0};
        call.width = static_cast<int16_t>(gdi::GetTabbedTextExtentW(dc, text, count, 0, nullptr));
        return gdi::TabbedTextOutW(dc, x, y, text, count, tabCount, tabs, origin);
    }

    WideKernel kernel_;
};

}  // namespace vxgui::test
