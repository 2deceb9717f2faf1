#pragma once

#include <cstdint>

/// The services by which stubs are bound; `VxCoreHlpEntry` hands out their addresses.
namespace vxgui::corehlp {

constexpr uint32_t kMajorVersion = 0x0700;
constexpr uint32_t kBuild = 700;

/// The address of a numbered service, or 0.
intptr_t GetServiceAddress(intptr_t number);

/// Stores the address of built-in service `target` (0 the entry, 1 GetServiceAddress, 2 BindStub,
/// 5 BindStubFast) or else `target` itself in the stub's place. Non-zero on success; 0 for a
/// place that can't be a pointer's or a target that can't be a function's.
intptr_t BindStub(intptr_t slot, intptr_t target, intptr_t zero);

/// The same for a place that is known to be good.
intptr_t BindStubFast(intptr_t slot, intptr_t target, intptr_t zero);

}  // namespace vxgui::corehlp
