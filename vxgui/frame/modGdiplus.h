#pragma once

#include <algorithm>

#include "vxgui/frame/Stub.h"
#include "vxgui/platform/gdiplus.h"

/// The GDI+ flat functions, bound late by name from "GDIPLUS.DLL". A call that finds no target
/// answers 0, which reads as Ok with nothing done: callers clear their out-arguments first.
namespace vxgui {

/// The address of an export of GDI+, or null. Finds the module on first need.
kernel::FARPROC GetGdipProc(const char* name);
VXGUI_API bool BindGdip(const char* name, corehlp::Slot stub);

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
template <ExportName kName, class Signature>
using GdipStub = Stub<GdipBinder<kName>, Signature>;

/// The late-bound flat functions, under the names of their targets.
namespace flat {

/// One flat function: the supplier declares it, and its name is the name of the export.
#define VXGUI_FLAT(Name) inline constexpr GdipStub<#Name, decltype(gdiplus::Name)> Name;
VXGUI_GDIPLUS_FUNCTIONS(VXGUI_FLAT)
#undef VXGUI_FLAT

}  // namespace flat
}  // namespace vxgui
