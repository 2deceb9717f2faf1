#include "vxgui/text/WideText.h"

#include <algorithm>
#include <optional>

#include "vxgui/frame/modVxCoreHlp.h"

namespace vxgui {
namespace {

struct WideProc {
    const char* library;
    const char* name;
};
constexpr WideProc kWideProcs[] = {{"user32", "DrawTextW"},
                                   {"gdi32", "ExtTextOutW"},
                                   {"user32", "TabbedTextOutW"},
                                   {"user32", "GetTabbedTextExtentW"}};

// The family whose own functions take ANSI text alone.
constexpr DWORD kPlatformWithoutWideFunctions = 1;

DWORD PlatformId() {
    thread_local std::optional<DWORD> id;  // read once
    if (!id) id = kernel::TheKernel().GetPlatformId();
    return *id;
}

kernel::HMODULE Companion() {
    thread_local kernel::HMODULE module = nullptr;
    if (!module) module = kernel::TheKernel().LoadLibraryA("unicows.dll");
    return module;
}

kernel::HMODULE ModuleOf(const char* library) {
    if (PlatformId() == kPlatformWithoutWideFunctions) return Companion();
    const kernel::HMODULE loaded = kernel::TheKernel().GetModuleHandleA(library);
    return loaded ? loaded : kernel::TheKernel().LoadLibraryA(library);
}

// More than there is is never read. -1 goes through as it is: the call stops at a zero then, as the
// ANSI one does that measures.
int32_t CountIn(const String& text, int32_t count) {
    return std::min(count, static_cast<int32_t>(text.size()));
}

}  // namespace

kernel::FARPROC ResolveWideProc(const char* library, const char* name) {
    const kernel::HMODULE module = ModuleOf(library);
    return module ? kernel::TheKernel().GetProcAddress(module, name) : nullptr;
}

template <int32_t kIndex>
bool WideTextBinder<kIndex>::Bind(corehlp::Slot stub) {
    return BindExport(stub, ResolveWideProc(kWideProcs[kIndex].library, kWideProcs[kIndex].name));
}
template struct WideTextBinder<0>;
template struct WideTextBinder<1>;
template struct WideTextBinder<2>;
template struct WideTextBinder<3>;

int32_t DrawTextWide(gdi::HDC hDC, const String& Text, int32_t nCount, gdi::RECT& lpRect,
                     uint32_t uFormat) {
    const int32_t count = CountIn(Text, nCount);
    if (uFormat & gdi::DT_MODIFYSTRING) {
        // The caller's text isn't written to; the call gets a copy with room for the ellipsis.
        std::u16string copy = Text.units() + std::u16string(4, u'\0');
        return wide::DrawTextW(hDC, copy.data(), count, &lpRect, uFormat);
    }
    return wide::DrawTextW(hDC, const_cast<char16_t*>(Text.data()), count, &lpRect, uFormat);
}

int32_t ExtTextOutWide(gdi::HDC hDC, int32_t X, int32_t Y, uint32_t Options,
                       const gdi::RECT& lpRect, const String& Text, int32_t Length) {
    const auto count = static_cast<UINT>(std::max(CountIn(Text, Length), 0));
    return wide::ExtTextOutW(hDC, X, Y, Options, &lpRect, Text.data(), count, nullptr);
}

int32_t TabbedTextOutWide(gdi::HDC hDC, int32_t X, int32_t Y, std::u16string_view text,
                          int32_t nTabOrigin) {
    const auto count = static_cast<int32_t>(text.size());
    return wide::TabbedTextOutW(hDC, X, Y, text.data(), count, 0, nullptr, nTabOrigin);
}

uint32_t GetTabbedTextExtentWide(gdi::HDC hDC, std::u16string_view text) {
    return wide::GetTabbedTextExtentW(hDC, text.data(), static_cast<int32_t>(text.size()), 0,
                                      nullptr);
}

}  // namespace vxgui
