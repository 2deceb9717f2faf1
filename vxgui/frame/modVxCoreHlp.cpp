#include "vxgui/frame/modVxCoreHlp.h"

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/ErrorBox.h"

namespace vxgui {

using kernel::TheKernel;

namespace {

constexpr const char* kFileName = "VxCoreHlp.dll";
constexpr uint32_t kMajorVersion = 0x0700;
constexpr uint32_t kOldestBuild = 670;
constexpr uint16_t kEntryOrdinal = 1;
constexpr int32_t kAttempts = 5;
constexpr size_t kLongestFileName = 259;  // what a buffer of 260 holds
constexpr UINT kExitMissing = 61440;
constexpr UINT kExitUnfit = 61441;

/// This library's own folder and the helper's name, joined as the folder itself is written.
String PathBesideThisLibrary() {
    const String own = TheKernel().GetModuleFileNameA(nullptr);
    const size_t slash = own.view().find_last_of(u"/\\");
    if (slash == String::npos) return kFileName;
    return own.Left(slash + 1) + kFileName;
}

intptr_t CallEntryPtr(kernel::FARPROC entry, intptr_t a, intptr_t b, intptr_t c, intptr_t d) {
    return reinterpret_cast<corehlp::EntryFunction>(entry)(a, b, c, d);
}

/// Says what is wrong and ends the process.
void Die(const String& message, UINT code) {
    ShowErrorBox(message);
    if (gCoreHlpModule) TheKernel().FreeLibrary(gCoreHlpModule);
    gCoreHlpModule = nullptr;
    TheKernel().ExitProcess(code);
}

}  // namespace

int32_t LoadCoreHlp() {
    if (gCoreHlpModule) return CheckCoreHlp(gCoreHlpModule);
    int32_t unfit = 0;
    for (int32_t attempt = 0; attempt < kAttempts; ++attempt) {
        gCoreHlpModule = CoreHlpCandidate(attempt);
        if (!gCoreHlpModule) continue;
        unfit = CheckCoreHlp(gCoreHlpModule);
        if (unfit == 0) return 0;
        // What was loaded already isn't ours to free.
        if (attempt != 0) TheKernel().FreeLibrary(gCoreHlpModule);
        gCoreHlpModule = nullptr;
    }
    if (unfit == 0) {
        Die(String("未找到文件：") + kFileName, kExitMissing);
        return 1;
    }
    Die("文件版本错误：" + CoreHlpFileName(), kExitUnfit);
    return unfit;
}

kernel::HMODULE CoreHlpCandidate(int32_t attempt) {
    switch (attempt) {
        case 0:
            return TheKernel().GetModuleHandleA(kFileName);
        case 1:
            return TheKernel().LoadLibraryA(PathBesideThisLibrary().Utf8().c_str());
        case 2:
            return TheKernel().LoadLibraryA(kFileName);
        default:
            return nullptr;
    }
}

int32_t CheckCoreHlp(kernel::HMODULE module) {
    const kernel::FARPROC entry = TheKernel().GetProcAddress(
        module, reinterpret_cast<const char*>(static_cast<uintptr_t>(kEntryOrdinal)));
    if (!entry) return 1;
    const auto version = static_cast<uint32_t>(CallEntryPtr(entry, 0, 0, 0, 0));
    if (version >> 16 != kMajorVersion) return 2;
    const auto entryStub = reinterpret_cast<intptr_t>(CoreHlpEntry.Place());
    if ((version & 0xFFFF) < kOldestBuild || !CallEntryPtr(entry, 2, entryStub, 0, 0) ||
        !CoreHlpEntry.IsBound()) {
        return 3;
    }
    const auto addressStub = reinterpret_cast<intptr_t>(GetServiceAddress.Place());
    return CoreHlpEntry(2, addressStub, 1, 0) ? 0 : 4;
}

String CoreHlpFileName() {
    if (!gCoreHlpModule) return PathBesideThisLibrary();
    return TheKernel().GetModuleFileNameA(gCoreHlpModule).Left(kLongestFileName);
}

int32_t BindService(int32_t number, corehlp::Slot stub) {
    const intptr_t address = GetServiceAddress(number);
    if (!address) return 1;
    if (!stub) return 2;
    return BindStubFast(reinterpret_cast<intptr_t>(stub), address, 0) ? 0 : 3;
}

bool BindExport(corehlp::Slot stub, kernel::FARPROC address) {
    if (!CoreHlpEntry.IsBound() && LoadCoreHlp() != 0) return false;
    // The bind service would take a target of 0 for the entry itself.
    return address &&
           BindStub(reinterpret_cast<intptr_t>(stub), reinterpret_cast<intptr_t>(address), 0) != 0;
}

bool BindModuleExport(kernel::HMODULE& module, const char* fileName, const char* exportName,
                      corehlp::Slot stub) {
    if (!module) module = TheKernel().LoadLibraryA(fileName);
    if (!module) return false;
    const kernel::FARPROC address = TheKernel().GetProcAddress(module, exportName);
    return address && BindExport(stub, address);
}

}  // namespace vxgui
