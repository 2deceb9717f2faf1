#include "vxgui/platform/corehlp/Entry.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "vxgui/platform/corehlp.h"
#include "vxgui/platform/corehlp/Modules.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::corehlp {
namespace {

int32_t Target(int32_t value) { return value + 1; }

/// A stub's place, with nothing in it.
struct EmptyPlace {
    std::atomic<void*> target{nullptr};

    intptr_t Address() { return reinterpret_cast<intptr_t>(&target); }
    template <class Function>
    Function* As() const {
        return reinterpret_cast<Function*>(target.load());
    }
};

using Entry = intptr_t(intptr_t, intptr_t, intptr_t, intptr_t);
using Bind = intptr_t(intptr_t, intptr_t, intptr_t);

TEST(CoreHlpEntry, AnswersAVersionThatTheLibraryAccepts) {
    const intptr_t version = VxCoreHlpEntry(0, 0, 0, 0);
    EXPECT_EQ(version >> 16, 0x0700);
    EXPECT_GE(version & 0xFFFF, 670);
}

TEST(CoreHlpEntry, FindsTheFiveServicesAndNoOther) {
    for (intptr_t number = 0; number < 0x1100; ++number) {
        const bool exists = number == 0x1002 || number == 0x1004 || number == 0x1005 ||
                            number == 0x1008 || number == 0x1009;
        EXPECT_EQ(VxCoreHlpEntry(0, 0, 1, number) != 0, exists) << std::hex << number;
    }
}

TEST(CoreHlpEntry, BindsTheBuiltInServices) {
    EmptyPlace entry, find, bind, fast;
    EXPECT_NE(VxCoreHlpEntry(2, entry.Address(), 0, 0), 0);
    EXPECT_NE(VxCoreHlpEntry(2, find.Address(), 1, 0), 0);
    EXPECT_NE(VxCoreHlpEntry(2, bind.Address(), 2, 0), 0);
    EXPECT_NE(VxCoreHlpEntry(2, fast.Address(), 5, 0), 0);

    EXPECT_EQ(entry.As<Entry>()(0, 0, 0, 0), VxCoreHlpEntry(0, 0, 0, 0));
    EXPECT_EQ(find.As<intptr_t(intptr_t)>()(kBlur), VxCoreHlpEntry(0, 0, 1, kBlur));
    for (const EmptyPlace* service : {&bind, &fast}) {
        EmptyPlace stub;
        EXPECT_NE(service->As<Bind>()(stub.Address(), reinterpret_cast<intptr_t>(&Target), 0), 0);
        EXPECT_EQ(stub.As<int32_t(int32_t)>()(41), 42);
    }
}

TEST(CoreHlpEntry, BindsAnAddress) {
    EmptyPlace stub;
    EXPECT_NE(VxCoreHlpEntry(2, stub.Address(), reinterpret_cast<intptr_t>(&Target), 0), 0);
    EXPECT_EQ(stub.As<int32_t(int32_t)>()(1), 2);
}

TEST(CoreHlpEntry, RefusesUnknownBuiltInServices) {
    for (intptr_t service : {3, 4, 6, 7, 100, 0xFFFF, -1}) {
        EmptyPlace stub;
        EXPECT_EQ(VxCoreHlpEntry(2, stub.Address(), service, 0), 0) << service;
        EXPECT_EQ(stub.target.load(), nullptr);
    }
}

TEST(CoreHlpEntry, RefusesAPlaceThatIsNone) {
    const auto target = reinterpret_cast<intptr_t>(&Target);
    EmptyPlace stub;
    EXPECT_EQ(VxCoreHlpEntry(2, 0, target, 0), 0);
    EXPECT_EQ(VxCoreHlpEntry(2, stub.Address() + 1, target, 0), 0);
    EXPECT_EQ(VxCoreHlpEntry(2, 0x100, target, 0), 0);
    EXPECT_EQ(BindStubFast(0, target, 0), 0);
    EXPECT_EQ(stub.target.load(), nullptr);
}

TEST(CoreHlpEntry, AnswersZeroToOtherCalls) {
    EmptyPlace stub;
    EXPECT_EQ(VxCoreHlpEntry(1, stub.Address(), 0, 0), 0);
    EXPECT_EQ(VxCoreHlpEntry(3, stub.Address(), 0, 0), 0);
    EXPECT_EQ(VxCoreHlpEntry(0, 0, 2, 0), 0);
    EXPECT_EQ(VxCoreHlpEntry(0, 1, 0, 0), 0);
    EXPECT_EQ(VxCoreHlpEntry(0, 0, 0, 1), 0);
    EXPECT_EQ(stub.target.load(), nullptr);
}

TEST(CoreHlpEntry, ThreadsMayBindOneStubAtOnce) {
    EmptyPlace stub;
    const auto bind = [&] {
        for (int i = 0; i < 1000; ++i) {
            VxCoreHlpEntry(2, stub.Address(), reinterpret_cast<intptr_t>(&Target), 0);
            EXPECT_EQ(stub.As<int32_t(int32_t)>()(i), i + 1);
        }
    };
    std::thread first(bind), second(bind);
    first.join();
    second.join();
}

TEST(CoreHlpExports, EntryIsOrdinalOne) {
    EXPECT_STREQ(kCoreHlpExports[0].name, "VxCoreHlpEntry");
    EXPECT_EQ(kCoreHlpExports[0].ordinal, 1);
    EXPECT_EQ(kCoreHlpExports[0].address, reinterpret_cast<kernel::FARPROC>(&VxCoreHlpEntry));
    EXPECT_EQ(kCoreHlpExports[1].address, nullptr);
}

TEST(CoreHlpExports, ModuleIsBuiltIn) {
    kernel::Kernel& real = kernel::RealKernel();
    const kernel::HMODULE module = real.LoadLibraryA("VxCoreHlp.dll");
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(real.GetProcAddress(module, reinterpret_cast<const char*>(1)),
              reinterpret_cast<kernel::FARPROC>(&VxCoreHlpEntry));
    real.FreeLibrary(module);
}

}  // namespace
}  // namespace vxgui::corehlp
