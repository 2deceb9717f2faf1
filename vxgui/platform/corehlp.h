#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"

/// The helper library: one entry, exported by ordinal 1 of the built-in module
/// "VxCoreHlp.dll", and five numbered pixel services, which the entry's `GetServiceAddress`
/// finds. `Services.h` of the implementation says what each does to the pixels.
namespace vxgui::corehlp {

/// A stub's place: the address of its atomic target pointer.
using Slot = void*;

/// (0, 0, 0, 0): version, high word 0x0700, low word the build.
/// (0, 0, 1, n): address of numbered service n, or 0.
/// (2, slot, k, 0): binds a slot to built-in service k (0 the entry, 1 GetServiceAddress,
/// 2 BindStub, 5 BindStubFast), or, for any other k, to the address k. Non-zero on success.
using EntryFunction = intptr_t (*)(intptr_t, intptr_t, intptr_t, intptr_t);

extern "C" VXPLATFORM_API intptr_t VxCoreHlpEntry(intptr_t command, intptr_t slot, intptr_t target,
                                                  intptr_t reserved);

/// Numbers of the pixel services.
enum ServiceNumber : int32_t {
    kBlur = 0x1002,
    kSetTransColor = 0x1004,
    kMergeTransparent = 0x1005,
    kGaussianBlur = 0x1008,
    kGaussianBlurEx = 0x1009,
};

/// Signatures of the services. `bits` is a block of 32-bit pixels, bottom row first.
using BlurFunction = int32_t(void* bits, int32_t width, int32_t height, int32_t blurWidth,
                             int32_t blurHeight, int32_t useColor, int32_t color);
using SetTransColorFunction = int32_t(void* bits, int32_t color, int32_t byteCount,
                                      int32_t matchAlpha, int32_t otherAlpha, int32_t keep);
using MergeTransparentFunction = int32_t(const void* source, void* destination, int32_t byteCount,
                                         int32_t key);
using GaussianBlurFunction = int32_t(void* bits, int32_t zero, int32_t width, int32_t height,
                                     int32_t radiusX, int32_t radiusY);
using GaussianBlurExFunction = int32_t(void* bits, int32_t zero, int32_t width, int32_t height,
                                       int32_t radiusX, int32_t radiusY, int32_t x1, int32_t y1,
                                       int32_t x2, int32_t y2);

}  // namespace vxgui::corehlp
