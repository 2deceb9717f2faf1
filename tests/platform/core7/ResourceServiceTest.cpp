#include <gtest/gtest.h>

#include <thread>

#include "tests/support/TemporaryFolder.h"
#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

TEST(ResourceServiceTest, TheBytesOfAResourceOutliveTheModule) {
    const test::TemporaryFolder folder;
    const std::string text = "[a]";
    const kernel::ResourceBlock block{reinterpret_cast<const uint8_t*>(text.data()), text.size()};
    const ByteArray file = kernel::WriteResourceModule({{"TxtFiles", "blue.INI", block}}, false);
    const String path = folder.Write("style.dll", std::string(file.begin(), file.end()));
    const kernel::HMODULE module = kernel::RealKernel().LoadLibraryA(path.Utf8().c_str());
    ASSERT_NE(module, nullptr);
    const ByteArray bytes = TheResourceService().ReadResource(module, "TxtFiles", "blue.ini");
    EXPECT_TRUE(TheResourceService().ReadResource(module, "TxtFiles", "red.ini").empty());
    kernel::RealKernel().FreeLibrary(module);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), text);
}

TEST(ResourceServiceTest, AModuleThatIsNoneHasNoResources) {
    EXPECT_TRUE(TheResourceService().ReadResource(nullptr, "Image", "a.png").empty());
    int noModule = 0;
    const auto wrong = reinterpret_cast<kernel::HMODULE>(&noModule);
    EXPECT_TRUE(TheResourceService().ReadResource(wrong, "Image", "a.png").empty());
}

TEST(ResourceServiceTest, AnArrayWithoutBytesIsEmpty) {
    EXPECT_TRUE(TheResourceService().IsEmptyArray({}));
    EXPECT_FALSE(TheResourceService().IsEmptyArray({0}));
}

TEST(ResourceServiceTest, AnApartmentHasOneOfItsOwn) {
    const ResourceService* here = &TheResourceService();
    EXPECT_EQ(here, &TheResourceService());
    std::thread([here] { EXPECT_NE(here, &TheResourceService()); }).join();
}

}  // namespace
}  // namespace vxgui::core7
