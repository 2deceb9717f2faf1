#pragma once

#include "vxgui/base/String.h"
#include "vxgui/frame/Stub.h"
#include "vxgui/platform/kernel.h"

/// The helper library "VxCoreHlp.dll", bound late: its loading, its entry, the bind services by
/// which every other stub is bound, and the stubs of its pixel services.
namespace vxgui {

/// Loads the helper into the apartment, or checks the one that is loaded. 0 when it is usable.
/// A helper that is missing or unfit ends the process, after a message.
int32_t LoadCoreHlp();
/// The module of attempt 0 to 4, or null.
kernel::HMODULE CoreHlpCandidate(int32_t attempt);
/// 0 good, 1 no entry, 2 wrong major version, 3 too old or its entry can't be bound, 4 its
/// GetServiceAddress can't be bound. Binds the two on the way.
int32_t CheckCoreHlp(kernel::HMODULE module);
/// The helper's path, for the message.
String CoreHlpFileName();
/// 0 bound, 1 no such service, 2 no stub given, 3 bind failed.
int32_t BindService(int32_t number, corehlp::Slot stub);
/// Binds a stub to an export by `BindStub`. Without an address the stub stays unbound, but the
/// helper is brought in all the same.
bool BindExport(corehlp::Slot stub, kernel::FARPROC address);
/// Binds a stub to a named export of a module that is loaded into `module` on first need. False
/// when the module or the export is missing.
bool BindModuleExport(kernel::HMODULE& module, const char* fileName, const char* exportName,
                      corehlp::Slot stub);

/// What the helper's own functions are bound by.
struct CoreHlpBinder {
    static bool Bind(corehlp::Slot) { return LoadCoreHlp() == 0; }
};
/// The entry, and the address of a numbered service or 0. Both are bound by `CheckCoreHlp`.
inline constexpr Stub<CoreHlpBinder, intptr_t(intptr_t, intptr_t, intptr_t, intptr_t)> CoreHlpEntry;
struct GetServiceAddressBinder : CoreHlpBinder {};
inline constexpr Stub<GetServiceAddressBinder, intptr_t(intptr_t number)> GetServiceAddress;

/// A bind service of the helper, which binds itself by the entry, as number `kService`.
template <intptr_t kService>
struct BindStubBinder {
    static intptr_t FirstCall(corehlp::Slot self, intptr_t stub, intptr_t target,
                              intptr_t reserved) {
        CoreHlpEntry(2, reinterpret_cast<intptr_t>(self), kService, 0);
        return CoreHlpEntry(2, stub, target, reserved);
    }
};
using BindStubFunction = intptr_t(intptr_t stub, intptr_t target, intptr_t zero);
/// (stub, target, 0): non-zero on success.
inline constexpr Stub<BindStubBinder<2>, BindStubFunction> BindStub;
inline constexpr Stub<BindStubBinder<5>, BindStubFunction> BindStubFast;

/// What a numbered service is bound by.
template <int32_t kNumber>
struct ServiceBinder {
    static bool Bind(corehlp::Slot stub) { return BindService(kNumber, stub) == 0; }
};
template <int32_t kNumber, class Signature>
using ServiceStub = Stub<ServiceBinder<kNumber>, Signature>;

inline constexpr ServiceStub<corehlp::kBlur, corehlp::BlurFunction> HlpBlur;
inline constexpr ServiceStub<corehlp::kSetTransColor, corehlp::SetTransColorFunction>
    HlpSetTransColor;
inline constexpr ServiceStub<corehlp::kMergeTransparent, corehlp::MergeTransparentFunction>
    HlpMergeTransparent;
inline constexpr ServiceStub<corehlp::kGaussianBlur, corehlp::GaussianBlurFunction> HlpGaussianBlur;
inline constexpr ServiceStub<corehlp::kGaussianBlurEx, corehlp::GaussianBlurExFunction>
    HlpGaussianBlurEx;

}  // namespace vxgui
