#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/GdiplusSession.h"
#include "tests/support/Images.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Start(UINT32 version, ULONG_PTR* token) {
    const GdiplusStartupInput input{version, nullptr, 0, 0};
    return GdiplusStartup(token, &input, nullptr);
}

TEST(GdiplusStartup, KnowsTwoVersions) {
    ULONG_PTR token = 0;
    EXPECT_EQ(Start(0, &token), UnsupportedGdiplusVersion);
    EXPECT_EQ(Start(3, &token), UnsupportedGdiplusVersion);
    EXPECT_EQ(token, 0u);
    for (const UINT32 version : {1u, 2u}) {
        EXPECT_EQ(Start(version, &token), Ok);
        EXPECT_NE(token, 0u);
        GdiplusShutdown(token);
    }
}

TEST(GdiplusStartup, NeedsItsArguments) {
    ULONG_PTR token = 0;
    EXPECT_EQ(Start(1, nullptr), InvalidParameter);
    EXPECT_EQ(GdiplusStartup(&token, nullptr, nullptr), InvalidParameter);
    const GdiplusStartupInput hooked{1, nullptr, 1, 0};
    EXPECT_EQ(GdiplusStartup(&token, &hooked, nullptr), InvalidParameter);
}

TEST(GdiplusStartup, GivesHooksToWhoWantsNoBackgroundThread) {
    const GdiplusStartupInput hooked{1, nullptr, 1, 0};
    GdiplusStartupOutput output{};
    ULONG_PTR token = 0;
    ASSERT_EQ(GdiplusStartup(&token, &hooked, &output), Ok);
    ULONG_PTR hookToken = 1;
    EXPECT_EQ(reinterpret_cast<GpStatus (*)(ULONG_PTR*)>(output.NotificationHook)(&hookToken), Ok);
    reinterpret_cast<void (*)(ULONG_PTR)>(output.NotificationUnhook)(hookToken);
    GdiplusShutdown(token);
}

TEST(GdiplusStartup, StartsAreCounted) {
    const String file = test::ImagePath("png-rgb-8.png");
    const auto create = [&] {
        GpBitmap* bitmap = nullptr;
        const GpStatus status = GdipCreateBitmapFromFile(file.data(), &bitmap);
        if (bitmap) GdipDisposeImage(reinterpret_cast<GpImage*>(bitmap));
        return status;
    };
    EXPECT_EQ(create(), GdiplusNotInitialized);
    ULONG_PTR first = 0, second = 0;
    ASSERT_EQ(Start(1, &first), Ok);
    ASSERT_EQ(Start(2, &second), Ok);
    EXPECT_NE(first, second);
    GdiplusShutdown(first);
    EXPECT_EQ(create(), Ok);
    GdiplusShutdown(first);
    EXPECT_EQ(create(), Ok) << "a token stops once";
    GdiplusShutdown(second);
    EXPECT_EQ(create(), GdiplusNotInitialized);
}

TEST(GdiplusExports, NameEachFunctionOnce) {
    const kernel::Export* each = kGdiplusExports;
    for (; each->address; ++each) {
        const std::string name = each->name;
        EXPECT_EQ(name.substr(0, 3), "Gdi");
        const kernel::HMODULE module = kernel::TheKernel().GetModuleHandleA("gdiplus");
        ASSERT_TRUE(module);
        EXPECT_EQ(kernel::TheKernel().GetProcAddress(module, each->name), each->address) << name;
    }
    EXPECT_EQ(each->name, nullptr);
}

}  // namespace
}  // namespace vxgui::gdiplus
