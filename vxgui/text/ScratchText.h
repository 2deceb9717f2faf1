#pragma once

#include "vxgui/platform/gdi.h"
#include "vxgui/surface/cAlphaDIBSection.h"

/// What the text painters share.
namespace vxgui {

/// Moves a context's font to another context for the length of a scope.
class BorrowedFont {
public:
    BorrowedFont(gdi::HDC from, gdi::HDC to)
        : from_(from),
          to_(to),
          font_(gdi::SelectObject(from, gdi::GetStockObject(gdi::SYSTEM_FONT))),
          old_(gdi::SelectObject(to, font_)) {}
    ~BorrowedFont() {
        gdi::SelectObject(to_, old_);
        gdi::SelectObject(from_, font_);
    }
    BorrowedFont(const BorrowedFont&) = delete;
    BorrowedFont& operator=(const BorrowedFont&) = delete;

private:
    gdi::HDC from_;
    gdi::HDC to_;
    gdi::HGDIOBJ font_;
    gdi::HGDIOBJ old_;
};

/// Sets a context's text colour for the length of a scope.
class ScopedTextColor {
public:
    ScopedTextColor(gdi::HDC dc, int32_t color)
        : dc_(dc), old_(gdi::SetTextColor(dc, static_cast<COLORREF>(color))) {}
    ~ScopedTextColor() { gdi::SetTextColor(dc_, old_); }
    /// The colour that is put back.
    COLORREF& Before() { return old_; }
    ScopedTextColor(const ScopedTextColor&) = delete;
    ScopedTextColor& operator=(const ScopedTextColor&) = delete;

private:
    gdi::HDC dc_;
    COLORREF old_;
};

/// Sets a context's background mode for the length of a scope.
class ScopedBkMode {
public:
    ScopedBkMode(gdi::HDC dc, int mode) : dc_(dc), old_(gdi::SetBkMode(dc, mode)) {}
    ~ScopedBkMode() { gdi::SetBkMode(dc_, old_); }
    ScopedBkMode(const ScopedBkMode&) = delete;
    ScopedBkMode& operator=(const ScopedBkMode&) = delete;

private:
    gdi::HDC dc_;
    int old_;
};

/// Selects a font for the length of a scope.
class ScopedFont {
public:
    ScopedFont(gdi::HDC dc, gdi::HFONT font) : dc_(dc), old_(gdi::SelectObject(dc, font)) {}
    ~ScopedFont() { gdi::SelectObject(dc_, old_); }
    ScopedFont(const ScopedFont&) = delete;
    ScopedFont& operator=(const ScopedFont&) = delete;

private:
    gdi::HDC dc_;
    gdi::HGDIOBJ old_;
};

/// Puts a context's character extra back at the end of a scope, where it was changed.
class ScopedCharacterExtra {
public:
    explicit ScopedCharacterExtra(gdi::HDC dc) : dc_(dc), old_(gdi::GetTextCharacterExtra(dc)) {}
    ~ScopedCharacterExtra() {
        if (gdi::GetTextCharacterExtra(dc_) != old_) gdi::SetTextCharacterExtra(dc_, old_);
    }
    ScopedCharacterExtra(const ScopedCharacterExtra&) = delete;
    ScopedCharacterExtra& operator=(const ScopedCharacterExtra&) = delete;

private:
    gdi::HDC dc_;
    int old_;
};

gdi::RECT Inflated(const gdi::RECT& rect, int32_t dx, int32_t dy);
gdi::RECT Offset(const gdi::RECT& rect, int32_t dx, int32_t dy);
int32_t WidthOf(const gdi::RECT& rect);
int32_t HeightOf(const gdi::RECT& rect);

/// A surface of the size, or none where it can't be.
Ref<cAlphaDIBSection> ScratchSurface(int32_t width, int32_t height, gdi::HDC compatible);

/// The text as the ANSI call takes it; `count` beyond the converted text is the whole.
int32_t DrawTextAnsi(gdi::HDC dc, const String& text, int32_t count, gdi::RECT& rect,
                     uint32_t format);

}  // namespace vxgui
