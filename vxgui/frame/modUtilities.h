#pragma once

namespace vxgui {

/// The start-up of an apartment: trace, system information, DrawDib and GDI+. A step that fails
/// is reported, and the next one runs.
void Main();

/// Runs `Main` unless it has run in this apartment: the first object that a host makes on a
/// thread calls this.
void SetUpApartment();

/// Starts GDI+; true means that a token is held, or that GDI+ can't be bound and a later call
/// tries again.
bool GDIPlusInitialize();

/// Opens the apartment's DrawDib handle, or closes it.
void OpenDrawDib(bool Open);

/// Whether the library runs inside a development environment; it never does.
constexpr bool InIde() { return false; }

}  // namespace vxgui
