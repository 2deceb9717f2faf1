#pragma once

#include <algorithm>

#include "vxgui/frame/Stub.h"
#include "vxgui/platform/kernel.h"

/// The GDI+ flat functions, bound late by name from "GDIPLUS.DLL". A call that finds no target
/// answers 0, which reads as Ok with nothing done: callers clear their out-arguments first.
namespace vxgui {

/// The address of an export of GDI+, or null. Finds the module on first need.
kernel::FARPROC GetGdipProc(const char* name);
bool BindGdip(const char* name, corehlp::Slot stub);

/// The name of an export as a template argument.
template <size_t N>
struct ExportName {
    char text[N];
    consteval ExportName(const char (&name)[N]) { std::copy_n(name, N, text); }
};

template <ExportName kName>
struct GdipBinder {
    static bool Bind(corehlp::Slot stub) { return BindGdip(kName.text, stub); }
};
/// One flat function, by the name of its export and its signature:
///
///     inline constexpr GdipStub<"GdipFlush", int32_t(void* graphics, int32_t intention)>
///     GdipFlush;
template <ExportName kName, class Signature>
using GdipStub = Stub<GdipBinder<kName>, Signature>;

/// The published start-up record.
struct GdiplusStartupInput {
    uint32_t GdiplusVersion;
    void* DebugEventCallback;
    int32_t SuppressBackgroundThread;
    int32_t SuppressExternalCodecs;
};

/// The late-bound flat functions, under the names of their targets.
namespace flat {

inline constexpr GdipStub<"GdiplusStartup",
                          int32_t(uintptr_t* token, const GdiplusStartupInput* input, void* output)>
    GdiplusStartup;

}  // namespace flat
}  // namespace vxgui
