#pragma once

#include <cstdint>

/// The published scalar types of the platform's interfaces.
namespace vxgui {

using BOOL = int32_t;
using BYTE = uint8_t;
using WORD = uint16_t;
using DWORD = uint32_t;
using LONG = int32_t;
using UINT = uint32_t;
using COLORREF = uint32_t;
using HANDLE = void*;

}  // namespace vxgui
