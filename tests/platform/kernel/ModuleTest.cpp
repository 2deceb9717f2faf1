#include <dlfcn.h>
#include <gtest/gtest.h>
#include <png.h>

#include <filesystem>
#include <fstream>
#include <thread>

#include "generated/Places.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/platform/kernel/ResourceFile.h"

namespace vxgui::kernel {
namespace {

void First() {}
void Second() {}
const Export kTable[] = {{"First", 0, &First}, {"Second", 7, &Second}, {nullptr, 0, nullptr}};
const Export kOther[] = {{"First", 0, &Second}, {nullptr, 0, nullptr}};

const char* Ordinal(uintptr_t number) { return reinterpret_cast<const char*>(number); }

/// A folder of its own for a test's module files.
class ModuleFileTest : public ::testing::Test {
protected:
    ModuleFileTest() { std::filesystem::create_directories(folder_); }
    ~ModuleFileTest() override { std::filesystem::remove_all(folder_); }

    std::string Write(const std::string& name, const std::string& bytes) {
        const std::string path = (folder_ / name).string();
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

    /// The least that is taken for a portable executable.
    static std::string Executable(uint8_t signatureOffset = 0x40) {
        std::string bytes(0x40, '\0');
        bytes.replace(0, 2, "MZ");
        bytes[0x3C] = static_cast<char>(signatureOffset);
        return bytes + std::string("PE\0\0", 4);
    }

    std::filesystem::path folder_ = std::filesystem::path(VXGUI_TEST_OUTPUT_DIR) / "modules" /
                                    ::testing::UnitTest::GetInstance()->current_test_info()->name();
    Kernel& kernel_ = RealKernel();
};

/// A shared object that is surely there, and a path to it.
std::string PngPath() {
    Dl_info info{};
    dladdr(reinterpret_cast<void*>(&png_access_version_number), &info);
    return std::filesystem::canonical(info.dli_fname).string();
}

TEST(BuiltInModule, StandsForEachCompanion) {
    const std::pair<const char*, const char*> kExports[] = {
        {"msimg32.dll", "AlphaBlend"},   {"msimg32.dll", "TransparentBlt"},
        {"msimg32.dll", "GradientFill"}, {"msvfw32.dll", "DrawDibOpen"},
        {"msvfw32.dll", "DrawDibClose"}, {"msvfw32.dll", "DrawDibDraw"},
    };
    for (const auto& [module, name] : kExports) {
        const HMODULE handle = RealKernel().GetModuleHandleA(module);
        EXPECT_NE(RealKernel().GetProcAddress(handle, name), nullptr) << name;
    }
}

TEST(BuiltInModule, IsAlwaysLoaded) {
    RegisterBuiltInModule("sample.dll", kTable);
    const HMODULE module = RealKernel().GetModuleHandleA("sample.dll");
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(RealKernel().LoadLibraryA("sample.dll"), module);
}

TEST(BuiltInModule, IsFoundInAnyCaseAndWithoutItsEnding) {
    RegisterBuiltInModule("sample.dll", kTable);
    const HMODULE module = RealKernel().GetModuleHandleA("sample.dll");
    EXPECT_EQ(RealKernel().GetModuleHandleA("SAMPLE.DLL"), module);
    EXPECT_EQ(RealKernel().GetModuleHandleA("Sample"), module);
    EXPECT_EQ(RealKernel().GetModuleHandleA("sample.dll.dll"), nullptr);
}

TEST(BuiltInModule, IsNoFileOfAnyFolder) {
    RegisterBuiltInModule("sample.dll", kTable);
    EXPECT_EQ(RealKernel().GetModuleHandleA("/tmp/sample.dll"), nullptr);
    EXPECT_EQ(RealKernel().LoadLibraryA("C:\\folder\\sample.dll"), nullptr);
    EXPECT_EQ(GetLastError(), 126u);
}

TEST(BuiltInModule, HasItsExportsByNameAndOrdinal) {
    RegisterBuiltInModule("sample.dll", kTable);
    const HMODULE module = RealKernel().GetModuleHandleA("sample.dll");
    EXPECT_EQ(RealKernel().GetProcAddress(module, "First"), &First);
    EXPECT_EQ(RealKernel().GetProcAddress(module, Ordinal(7)), &Second);
    EXPECT_EQ(RealKernel().GetProcAddress(module, "first"), nullptr);
    EXPECT_EQ(RealKernel().GetProcAddress(module, Ordinal(8)), nullptr);
    EXPECT_EQ(GetLastError(), 127u);
}

TEST(BuiltInModule, HasNoExportAtOrdinalZero) {
    RegisterBuiltInModule("sample.dll", kTable);
    const HMODULE module = RealKernel().GetModuleHandleA("sample.dll");
    EXPECT_EQ(RealKernel().GetProcAddress(module, nullptr), nullptr);
}

TEST(BuiltInModule, StaysWhenItIsFreed) {
    RegisterBuiltInModule("sample.dll", kTable);
    const HMODULE module = RealKernel().LoadLibraryA("sample.dll");
    EXPECT_TRUE(RealKernel().FreeLibrary(module));
    EXPECT_EQ(RealKernel().GetProcAddress(module, "First"), &First);
}

TEST(BuiltInModule, KeepsItsHandleWhenItsTableIsReplaced) {
    RegisterBuiltInModule("replaced.dll", kTable);
    const HMODULE module = RealKernel().GetModuleHandleA("replaced.dll");
    RegisterBuiltInModule("REPLACED.DLL", kOther);
    EXPECT_EQ(RealKernel().GetModuleHandleA("replaced.dll"), module);
    EXPECT_EQ(RealKernel().GetProcAddress(module, "First"), &Second);
}

TEST(BuiltInModule, IsHeldByTheFileOfThisLibrary) {
    RegisterBuiltInModule("sample.dll", kTable);
    const HMODULE module = RealKernel().GetModuleHandleA("sample.dll");
    const String own = RealKernel().GetModuleFileNameA(nullptr);
    EXPECT_EQ(own, String(std::filesystem::read_symlink("/proc/self/exe").string()));
    EXPECT_EQ(RealKernel().GetModuleFileNameA(module), own);
}

TEST(Module, IsNotWhatIsNoHandle) {
    int something = 0;
    const auto wrong = reinterpret_cast<HMODULE>(&something);
    SetLastError(0);
    EXPECT_FALSE(RealKernel().FreeLibrary(wrong));
    EXPECT_EQ(GetLastError(), 6u);
    EXPECT_EQ(RealKernel().GetProcAddress(wrong, "First"), nullptr);
    EXPECT_EQ(RealKernel().GetProcAddress(nullptr, "First"), nullptr);
    EXPECT_EQ(RealKernel().GetModuleFileNameA(wrong), String());
    EXPECT_FALSE(RealKernel().FreeLibrary(nullptr));
}

TEST(Module, HasAName) {
    EXPECT_EQ(RealKernel().LoadLibraryA(nullptr), nullptr);
    EXPECT_EQ(RealKernel().LoadLibraryA(""), nullptr);
    EXPECT_EQ(RealKernel().GetModuleHandleA(nullptr), nullptr);
    EXPECT_EQ(RealKernel().LoadLibraryA("/tmp/"), nullptr);
}

TEST_F(ModuleFileTest, SharedObjectGivesItsOwnExportsAlone) {
    const HMODULE module = kernel_.LoadLibraryA(PngPath().c_str());
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(kernel_.GetProcAddress(module, "png_access_version_number"),
              reinterpret_cast<FARPROC>(&png_access_version_number));
    EXPECT_EQ(kernel_.GetProcAddress(module, "deflate"), nullptr);  // of a library that it uses
    EXPECT_EQ(kernel_.GetProcAddress(module, Ordinal(1)), nullptr);
    EXPECT_EQ(kernel_.GetModuleFileNameA(module), String(PngPath()));
    EXPECT_TRUE(kernel_.FreeLibrary(module));
}

TEST_F(ModuleFileTest, IsNeverLookedForInTheWorkingFolder) {
    Write("skin.dll", Executable());
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder_);
    EXPECT_EQ(kernel_.LoadLibraryA("skin.dll"), nullptr);
    const HMODULE asked = kernel_.LoadLibraryA(".\\skin.dll");
    std::filesystem::current_path(before);
    EXPECT_NE(asked, nullptr);
    EXPECT_TRUE(kernel_.FreeLibrary(asked));
}

TEST_F(ModuleFileTest, IsFoundBesideTheProgramByItsBareName) {
    const auto beside =
        std::filesystem::read_symlink("/proc/self/exe").parent_path() / "kernel_test_skin.dll";
    std::ofstream(beside, std::ios::binary) << Executable();
    const HMODULE module = kernel_.LoadLibraryA("kernel_test_skin");
    std::filesystem::remove(beside);
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(kernel_.GetModuleFileNameA(module), String(beside.string()));
    EXPECT_TRUE(kernel_.FreeLibrary(module));
}

TEST_F(ModuleFileTest, ResourceFileIsReadAndHasNoExports) {
    const std::string bytes = Executable() + "resources";
    const HMODULE module = kernel_.LoadLibraryA(Write("skin.dll", bytes).c_str());
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(kernel_.GetProcAddress(module, "First"), nullptr);
    EXPECT_EQ(kernel_.GetProcAddress(module, Ordinal(1)), nullptr);
    const ResourceBlock block = ModuleFileBytes(module);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(block.data), block.size), bytes);
    EXPECT_TRUE(kernel_.FreeLibrary(module));
    EXPECT_EQ(ModuleFileBytes(module).size, 0u);
}

TEST_F(ModuleFileTest, OtherModulesHaveNoFileBytes) {
    RegisterBuiltInModule("sample.dll", kTable);
    EXPECT_EQ(ModuleFileBytes(kernel_.GetModuleHandleA("sample.dll")).data, nullptr);
}

TEST_F(ModuleFileTest, IsFoundInAnyLetterCase) {
    const std::string path = Write("Skin.DLL", Executable());
    const HMODULE module = kernel_.LoadLibraryA((folder_ / "skin.dll").string().c_str());
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(kernel_.GetModuleFileNameA(module), String(path));
    EXPECT_TRUE(kernel_.FreeLibrary(module));
}

TEST_F(ModuleFileTest, StaysUntilEachLoadIsUndone) {
    const std::string path = Write("skin.dll", Executable());
    EXPECT_EQ(kernel_.GetModuleHandleA("skin.dll"), nullptr);
    const HMODULE module = kernel_.LoadLibraryA(path.c_str());
    EXPECT_EQ(kernel_.LoadLibraryA((folder_ / "." / "skin").string().c_str()), module);
    EXPECT_EQ(kernel_.GetModuleHandleA("SKIN"), module);
    EXPECT_EQ(kernel_.GetModuleHandleA(path.c_str()), module);
    EXPECT_TRUE(kernel_.FreeLibrary(module));
    EXPECT_EQ(kernel_.GetModuleHandleA("skin.dll"), module);
    EXPECT_TRUE(kernel_.FreeLibrary(module));
    EXPECT_EQ(kernel_.GetModuleHandleA("skin.dll"), nullptr);
    EXPECT_FALSE(kernel_.FreeLibrary(module));
}

TEST_F(ModuleFileTest, MayBeLoadedAndFreedByManyThreads) {
    const std::string path = Write("skin.dll", Executable());
    const auto use = [&] {
        for (int i = 0; i < 50; ++i) {
            const HMODULE module = kernel_.LoadLibraryA(path.c_str());
            EXPECT_EQ(kernel_.GetModuleFileNameA(module), String(path));
            EXPECT_TRUE(kernel_.FreeLibrary(module));
        }
    };
    std::thread first(use);
    std::thread second(use);
    first.join();
    second.join();
    EXPECT_EQ(kernel_.GetModuleHandleA(path.c_str()), nullptr);
}

TEST_F(ModuleFileTest, OfAnotherKindIsRefused) {
    const std::pair<const char*, std::string> kFiles[] = {
        {"text.dll", "hello, world"},
        {"short.dll", "MZ"},
        {"far.dll", Executable(0xF0)},
        {"edge.dll", Executable(0x42)},
        {"unsigned.dll", Executable(0x10)},
        {"broken.so",
         "\x7F"
         "ELF but no more"},
    };
    for (const auto& [name, bytes] : kFiles) {
        SetLastError(0);
        EXPECT_EQ(kernel_.LoadLibraryA(Write(name, bytes).c_str()), nullptr) << name;
        EXPECT_EQ(GetLastError(), 193u) << name;
    }
}

TEST_F(ModuleFileTest, ThatIsTooLargeIsRefused) {
    const std::string path = Write("skin.dll", Executable());
    std::filesystem::resize_file(path, (256u << 20) + 1);
    EXPECT_EQ(kernel_.LoadLibraryA(path.c_str()), nullptr);
    EXPECT_EQ(GetLastError(), 193u);
}

TEST_F(ModuleFileTest, ThatIsNotThereIsReported) {
    SetLastError(0);
    EXPECT_EQ(kernel_.LoadLibraryA((folder_ / "none.dll").string().c_str()), nullptr);
    EXPECT_EQ(GetLastError(), 126u);
    EXPECT_EQ(kernel_.LoadLibraryA(folder_.string().c_str()), nullptr);  // a folder
}

}  // namespace
}  // namespace vxgui::kernel
