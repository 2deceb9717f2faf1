#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <functional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/Stub.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

inline void PrintTo(const ARGB& pixel, std::ostream* out) {
    *out << "b" << int{pixel.Blue} << " g" << int{pixel.Green} << " r" << int{pixel.Red} << " a"
         << int{pixel.Alpha};
}

}  // namespace vxgui

namespace vxgui::test {

constexpr ARGB Pixel(uint8_t blue, uint8_t green, uint8_t red, uint8_t alpha) {
    return {blue, green, red, alpha};
}

/// The pixel memory as it stands, in memory order.
inline std::vector<ARGB> MemoryOf(const Ref<cAlphaDIBSection>& surface) {
    const auto* first = static_cast<const ARGB*>(surface->DIBSectionBitsPtr());
    return first ? std::vector<ARGB>(first, first + surface->Width() * surface->Height())
                 : std::vector<ARGB>();
}

inline void FillMemory(const Ref<cAlphaDIBSection>& surface,
                       const std::function<ARGB(int index)>& pixel) {
    auto* bits = static_cast<ARGB*>(surface->DIBSectionBitsPtr());
    for (int i = 0; i < surface->Width() * surface->Height(); ++i) bits[i] = pixel(i);
}

inline Ref<cAlphaDIBSection> MakeSurface(int32_t width, int32_t height) {
    auto surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->Create(width, height));
    return surface;
}

inline Ref<cAlphaDIBSection> MakeSurface(int32_t width, int32_t height, ARGB colour) {
    auto surface = MakeSurface(width, height);
    FillMemory(surface, [=](int) { return colour; });
    return surface;
}

/// A surface whose element i in memory is the 32-bit value i + 1.
inline Ref<cAlphaDIBSection> MakeCountedSurface(int32_t width, int32_t height) {
    auto surface = MakeSurface(width, height);
    FillMemory(surface, [](int i) { return ARGBFromValue(i + 1); });
    return surface;
}

inline ARGB RandomPixel(std::mt19937& random) {
    return ARGBFromValue(static_cast<int32_t>(random()));
}

inline Ref<cAlphaDIBSection> MakeRandomSurface(int32_t width, int32_t height,
                                               std::mt19937& random) {
    auto surface = MakeSurface(width, height);
    FillMemory(surface, [&](int) { return RandomPixel(random); });
    return surface;
}

/// Host pixels that end right before a page which nobody may touch (or start right behind one),
/// with a context over them. Row 0 is the top one.
class GuardedTarget {
public:
    enum class Guard { Behind, Before };

    GuardedTarget(int width, int height, Guard guard = Guard::Behind)
        : width_(width), height_(height) {
        const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
        const size_t bytes = static_cast<size_t>(width) * static_cast<size_t>(height) * 4;
        const size_t room = (bytes + page - 1) / page * page;
        size_ = room + page;
        map_ = static_cast<uint8_t*>(
            mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        const bool behind = guard == Guard::Behind;
        mprotect(behind ? map_ + room : map_, page, PROT_NONE);
        pixels_ = reinterpret_cast<ARGB*>(behind ? map_ + room - bytes : map_ + page);
        dc_ = gdi::CreateHostDC({pixels_, width, height, width * 4, false});
    }
    ~GuardedTarget() {
        gdi::DeleteDC(dc_);
        munmap(map_, size_);
    }
    GuardedTarget(const GuardedTarget&) = delete;
    GuardedTarget& operator=(const GuardedTarget&) = delete;

    gdi::HDC dc() const { return dc_; }
    int width() const { return width_; }
    int height() const { return height_; }
    ARGB& At(int x, int y) { return pixels_[y * width_ + x]; }
    void Fill(ARGB colour) { std::fill_n(pixels_, width_ * height_, colour); }
    std::vector<ARGB> Pixels() const { return {pixels_, pixels_ + width_ * height_}; }
    /// From now on a write into the pixels ends the process.
    void Protect() { mprotect(map_, size_, PROT_READ); }

private:
    int width_, height_;
    size_t size_;
    uint8_t* map_;
    ARGB* pixels_;
    gdi::HDC dc_;
};

/// Sets the apartment's switch for the platform's blits for the length of a scope.
class SystemBlend {
public:
    explicit SystemBlend(bool on) {
        New<cAlphaDIBSection>();  // the apartment's set-up must not overwrite the switch later
        before_ = std::exchange(gUseSystemAlphaBlend, on);
    }
    ~SystemBlend() { gUseSystemAlphaBlend = before_; }
    SystemBlend(const SystemBlend&) = delete;
    SystemBlend& operator=(const SystemBlend&) = delete;

private:
    bool before_;
};

/// The real kernel, with all stubs unbound so that they ask it; a test changes single answers.
/// `ExitProcess` raises.
class PassingKernel : public kernel::Kernel {
public:
    PassingKernel() {
        UnbindAllStubs();
        kernel::SetKernel(this);
    }
    ~PassingKernel() override {
        kernel::SetKernel(nullptr);
        UnbindAllStubs();
    }

    kernel::HMODULE GetModuleHandleA(const char* name) override {
        return kernel::RealKernel().GetModuleHandleA(name);
    }
    kernel::HMODULE LoadLibraryA(const char* name) override {
        return kernel::RealKernel().LoadLibraryA(name);
    }
    BOOL FreeLibrary(kernel::HMODULE module) override {
        return kernel::RealKernel().FreeLibrary(module);
    }
    kernel::FARPROC GetProcAddress(kernel::HMODULE module, const char* name) override {
        return kernel::RealKernel().GetProcAddress(module, name);
    }
    String GetModuleFileNameA(kernel::HMODULE module) override {
        return kernel::RealKernel().GetModuleFileNameA(module);
    }
    DWORD GetPlatformId() override { return kernel::RealKernel().GetPlatformId(); }
    int MessageBox(const String& text, const String&, UINT) override {
        messages.push_back(text);
        return kernel::IDOK;
    }
    void ExitProcess(UINT) override {
        throw Error(ErrorNumber::InvalidCall, "Kernel", "the process would end");
    }

    std::vector<String> messages;
};

/// A kernel that cannot load one module.
class MissingModule : public PassingKernel {
public:
    explicit MissingModule(std::string name)
        : name_(std::move(name)), module_(std::exchange(gMsImg32Module, nullptr)) {}
    ~MissingModule() override { gMsImg32Module = module_; }

    kernel::HMODULE GetModuleHandleA(const char* name) override {
        return name == name_ ? nullptr : PassingKernel::GetModuleHandleA(name);
    }
    kernel::HMODULE LoadLibraryA(const char* name) override {
        return name == name_ ? nullptr : PassingKernel::LoadLibraryA(name);
    }

private:
    std::string name_;
    kernel::HMODULE module_;
};

}  // namespace vxgui::test
