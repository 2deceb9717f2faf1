#include <thread>

#include "tests/frame/FrameTest.h"
#include "vxgui/frame/modVxCoreHlp.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kMissing = "message 未找到文件：VxCoreHlp.dll|VxGUI|10010";
constexpr const char* kUnfit = "message 文件版本错误：/opt/host/VxCoreHlp.dll|VxGUI|10010";
constexpr const char* kAttempt0 = "handle VxCoreHlp.dll";
constexpr const char* kAttempt1 = "load /opt/host/VxCoreHlp.dll";
constexpr const char* kAttempt2 = "load VxCoreHlp.dll";

template <class S>
intptr_t SlotOf(const S&) {
    return reinterpret_cast<intptr_t>(S::Place());
}

std::vector<int64_t> gArguments;

int32_t RecordBlur(void* bits, int32_t a, int32_t b, int32_t c, int32_t d, int32_t e, int32_t f) {
    gArguments = {reinterpret_cast<int64_t>(bits), a, b, c, d, e, f};
    return 77;
}
int32_t RecordSix(void* bits, int32_t a, int32_t b, int32_t c, int32_t d, int32_t e) {
    gArguments = {reinterpret_cast<int64_t>(bits), a, b, c, d, e};
    return 78;
}
int32_t RecordMerge(const void* source, void* destination, int32_t a, int32_t b) {
    gArguments = {reinterpret_cast<int64_t>(source), reinterpret_cast<int64_t>(destination), a, b};
    return 79;
}
int32_t RecordTen(void* bits, int32_t a, int32_t b, int32_t c, int32_t d, int32_t e, int32_t f,
                  int32_t g, int32_t h, int32_t i) {
    gArguments = {reinterpret_cast<int64_t>(bits), a, b, c, d, e, f, g, h, i};
    return 80;
}

class CoreHlp : public FrameTest {};

TEST_F(CoreHlp, ThatIsMissingEndsTheProcess) {
    EXPECT_NE(LoadCoreHlp(), 0);
    EXPECT_THAT(kernel_.calls,
                ElementsAre(kAttempt0, kAttempt1, kAttempt2, kMissing, "exit 61440"));
    EXPECT_EQ(gCoreHlpModule, nullptr);
}

TEST_F(CoreHlp, IsTakenFromTheProcessFirst) {
    ActedModule& loaded = AddHelper("VxCoreHlp.dll", 0, true);
    AddHelper("/opt/host/VxCoreHlp.dll", 1);
    EXPECT_EQ(LoadCoreHlp(), 0);
    EXPECT_EQ(gCoreHlpModule, loaded.Handle());
    EXPECT_THAT(kernel_.calls, ElementsAre(kAttempt0, "find 1"));
}

TEST_F(CoreHlp, IsTakenFromThisLibrarysFolderNext) {
    AddHelper("VxCoreHlp.dll");
    ActedModule& beside = AddHelper("/opt/host/VxCoreHlp.dll", 1);
    EXPECT_EQ(LoadCoreHlp(), 0);
    EXPECT_EQ(gCoreHlpModule, beside.Handle());
}

TEST_F(CoreHlp, IsTakenFromTheSearchOrderLast) {
    ActedModule& found = AddHelper();
    EXPECT_EQ(LoadCoreHlp(), 0);
    EXPECT_EQ(gCoreHlpModule, found.Handle());
}

TEST_F(CoreHlp, HasNoCandidateAfterTheThird) {
    AddHelper("VxCoreHlp.dll", 0, true);
    EXPECT_NE(CoreHlpCandidate(0), nullptr);
    EXPECT_NE(CoreHlpCandidate(2), nullptr);
    EXPECT_EQ(CoreHlpCandidate(3), nullptr);
    EXPECT_EQ(CoreHlpCandidate(4), nullptr);
}

TEST_F(CoreHlp, OfTheOldestBuildIsAccepted) {
    AddHelper();
    gHelpers[0].version = 0x07000000 + 670;
    EXPECT_EQ(LoadCoreHlp(), 0);
}

TEST_F(CoreHlp, ThatIsTooOldEndsTheProcess) {
    AddHelper();
    gHelpers[0].version = 0x07000000 + 669;
    EXPECT_EQ(LoadCoreHlp(), 3);
    EXPECT_THAT(kernel_.calls, ElementsAre(kAttempt0, kAttempt1, kAttempt2, "find 1",
                                           "free VxCoreHlp.dll", kUnfit, "exit 61441"));
    EXPECT_EQ(gCoreHlpModule, nullptr);
}

TEST_F(CoreHlp, OfAnotherMajorVersionIsRejectedWhateverItsBuild) {
    for (const uint32_t version : {0x07010000u + 670, 0x0701FFFFu, 0x06FFFFFFu, 0xFFFF7000u, 0u}) {
        gHelpers[0].version = version;
        EXPECT_EQ(CheckCoreHlp(AddHelper().Handle()), 2) << version;
    }
}

TEST_F(CoreHlp, WithoutAnEntryIsRejected) {
    EXPECT_EQ(CheckCoreHlp(kernel_.Add("VxCoreHlp.dll").Handle()), 1);
}

TEST_F(CoreHlp, WhoseEntryCannotBeBoundIsRejected) {
    gHelpers[0].bindsEntry = false;
    EXPECT_EQ(CheckCoreHlp(AddHelper().Handle()), 3);
}

TEST_F(CoreHlp, WhoseSecondBindFailsIsRejected) {
    gHelpers[0].bindsAddress = false;
    EXPECT_EQ(CheckCoreHlp(AddHelper().Handle()), 4);
}

TEST_F(CoreHlp, ThatClaimsToHaveBoundIsRejected) {
    gHelpers[0].stores = false;
    EXPECT_EQ(CheckCoreHlp(AddHelper().Handle()), 3);
}

TEST_F(CoreHlp, IsAskedInTheOrderOfItsProtocol) {
    ASSERT_EQ(CheckCoreHlp(AddHelper().Handle()), 0);
    EXPECT_THAT(gHelpers[0].calls,
                ElementsAre(ElementsAre(0, 0, 0, 0), ElementsAre(2, SlotOf(CoreHlpEntry), 0, 0),
                            ElementsAre(2, SlotOf(GetServiceAddress), 1, 0)));
}

TEST_F(CoreHlp, LoadedAlreadyButTooOldIsNotFreedAndTheOthersAreTried) {
    AddHelper("VxCoreHlp.dll", 0, true);
    ActedModule& beside = AddHelper("/opt/host/VxCoreHlp.dll", 0);
    gHelpers[0].version = 0x07000000 + 669;
    EXPECT_EQ(LoadCoreHlp(), 3);
    EXPECT_THAT(kernel_.calls,
                ElementsAre(kAttempt0, "find 1", kAttempt1, "find 1", "free " + beside.fileName,
                            kAttempt2, "find 1", "free VxCoreHlp.dll", kUnfit, "exit 61441"));
}

TEST_F(CoreHlp, BesideThisLibraryIsUsedInThePlaceOfOneThatIsLoadedAndTooOld) {
    AddHelper("VxCoreHlp.dll", 0, true);
    ActedModule& beside = AddHelper("/opt/host/VxCoreHlp.dll", 1);
    gHelpers[0].version = 0x07000000 + 669;
    EXPECT_EQ(LoadCoreHlp(), 0);
    EXPECT_EQ(gCoreHlpModule, beside.Handle());
    EXPECT_THAT(kernel_.calls, ElementsAre(kAttempt0, "find 1", kAttempt1, "find 1"));
}

TEST_F(CoreHlp, ThatIsInIsOnlyCheckedAgain) {
    ActedModule& module = AddHelper();
    gCoreHlpModule = module.Handle();
    EXPECT_EQ(LoadCoreHlp(), 0);
    module.firstOrdinal = nullptr;
    EXPECT_EQ(LoadCoreHlp(), 1);
    EXPECT_THAT(kernel_.calls, ElementsAre("find 1", "find 1"));
}

TEST_F(CoreHlp, FileNameIsTheModulesOwn) {
    gCoreHlpModule = AddHelper("/usr/lib/VxCoreHlp.dll").Handle();
    EXPECT_EQ(CoreHlpFileName(), String("/usr/lib/VxCoreHlp.dll"));
}

TEST_F(CoreHlp, FileNameWithoutAModuleIsBesideThisLibrary) {
    EXPECT_EQ(CoreHlpFileName(), String("/opt/host/VxCoreHlp.dll"));
    kernel_.ownPath = "C:\\host\\VxGUI.dll";
    EXPECT_EQ(CoreHlpFileName(), String("C:\\host\\VxCoreHlp.dll"));
    kernel_.ownPath = "VxGUI.dll";
    EXPECT_EQ(CoreHlpFileName(), String("VxCoreHlp.dll"));
}

TEST_F(CoreHlp, FileNameIsCutAtTheInterfacesBuffer) {
    gCoreHlpModule = AddHelper(std::string(300, 'x')).Handle();
    EXPECT_EQ(CoreHlpFileName().size(), 259u);
}

TEST_F(CoreHlp, BindServiceSaysWhatWentWrong) {
    AddHelper();
    gHelpers[0].services[0x1002] = AsExport(&RecordBlur);
    EXPECT_EQ(BindService(0x1003, HlpBlur.Place()), 1);
    EXPECT_EQ(BindService(0x1002, nullptr), 2);
    gHelpers[0].bindsStubs = false;
    EXPECT_EQ(BindService(0x1002, HlpBlur.Place()), 3);
    gHelpers[0].bindsStubs = true;
    EXPECT_EQ(BindService(0x1002, HlpBlur.Place()), 0);
    EXPECT_TRUE(HlpBlur.IsBound());
}

TEST_F(CoreHlp, BindStubBindsItselfOnItsFirstCall) {
    AddHelper();
    ASSERT_EQ(LoadCoreHlp(), 0);
    gHelpers[0].calls.clear();
    std::atomic<intptr_t> slot{0};
    const auto place = reinterpret_cast<intptr_t>(&slot);
    EXPECT_NE(BindStub(place, 1234, 0), 0);
    EXPECT_EQ(slot, 1234);
    EXPECT_THAT(gHelpers[0].calls, ElementsAre(ElementsAre(2, SlotOf(BindStub), 2, 0),
                                               ElementsAre(2, place, 1234, 0)));
    EXPECT_EQ(gHelpers[0].directBinds, 0);
    EXPECT_NE(BindStub(place, 5678, 0), 0);
    EXPECT_EQ(slot, 5678);
    EXPECT_EQ(gHelpers[0].calls.size(), 2u);
    EXPECT_EQ(gHelpers[0].directBinds, 1);
}

TEST_F(CoreHlp, BindStubFastBindsItselfAsTheFastService) {
    AddHelper();
    ASSERT_EQ(LoadCoreHlp(), 0);
    gHelpers[0].calls.clear();
    std::atomic<intptr_t> slot{0};
    const auto place = reinterpret_cast<intptr_t>(&slot);
    EXPECT_NE(BindStubFast(place, 1234, 0), 0);
    EXPECT_THAT(gHelpers[0].calls, ElementsAre(ElementsAre(2, SlotOf(BindStubFast), 5, 0),
                                               ElementsAre(2, place, 1234, 0)));
    EXPECT_NE(BindStubFast(place, 5678, 0), 0);
    EXPECT_EQ(gHelpers[0].directBinds, 1);
}

TEST_F(CoreHlp, ServicesGetTheirArgumentsUnchanged) {
    AddHelper();
    gHelpers[0].services = {{0x1002, AsExport(&RecordBlur)},
                            {0x1004, AsExport(&RecordSix)},
                            {0x1005, AsExport(&RecordMerge)},
                            {0x1008, AsExport(&RecordSix)},
                            {0x1009, AsExport(&RecordTen)}};
    const auto bits = reinterpret_cast<void*>(uintptr_t{0x123456789});
    EXPECT_EQ(HlpBlur(bits, -1, 2, 3, 4, 5, 6), 77);
    EXPECT_THAT(gArguments, ElementsAre(0x123456789, -1, 2, 3, 4, 5, 6));
    EXPECT_EQ(HlpSetTransColor(bits, 0xFF00FF, 400, 0, 255, 1), 78);
    EXPECT_THAT(gArguments, ElementsAre(0x123456789, 0xFF00FF, 400, 0, 255, 1));
    EXPECT_EQ(HlpMergeTransparent(bits, nullptr, 400, -9), 79);
    EXPECT_THAT(gArguments, ElementsAre(0x123456789, 0, 400, -9));
    EXPECT_EQ(HlpGaussianBlur(bits, 0, 10, 20, 3, 4), 78);
    EXPECT_THAT(gArguments, ElementsAre(0x123456789, 0, 10, 20, 3, 4));
    EXPECT_EQ(HlpGaussianBlurEx(bits, 0, 10, 20, 3, 4, 5, 6, 7, 8), 80);
    EXPECT_THAT(gArguments, ElementsAre(0x123456789, 0, 10, 20, 3, 4, 5, 6, 7, 8));
}

TEST_F(CoreHlp, MissingServiceLeavesItsStubUnboundAndIsLookedForAgain) {
    AddHelper();
    EXPECT_EQ(HlpBlur(nullptr, 1, 2, 3, 4, 5, 6), 0);
    EXPECT_FALSE(HlpBlur.IsBound());
    gHelpers[0].services[0x1002] = AsExport(&RecordBlur);
    EXPECT_EQ(HlpBlur(nullptr, 1, 2, 3, 4, 5, 6), 77);
    EXPECT_TRUE(HlpBlur.IsBound());
}

TEST_F(CoreHlp, BoundServiceIsCalledWithoutAnyLookUp) {
    AddHelper();
    gHelpers[0].services[0x1002] = AsExport(&RecordBlur);
    HlpBlur(nullptr, 1, 2, 3, 4, 5, 6);
    const size_t kernelCalls = kernel_.calls.size();
    const size_t helperCalls = gHelpers[0].calls.size();
    gHelpers[0].services.clear();
    EXPECT_EQ(HlpBlur(nullptr, 1, 2, 3, 4, 5, 6), 77);
    EXPECT_EQ(kernel_.calls.size(), kernelCalls);
    EXPECT_EQ(gHelpers[0].calls.size(), helperCalls);
}

TEST_F(CoreHlp, BindingIsOfTheProcessWhileModulesAreOfTheApartment) {
    AddHelper();
    gHelpers[0].services[0x1002] = AsExport(&RecordBlur);
    HlpBlur(nullptr, 1, 2, 3, 4, 5, 6);
    const size_t kernelCalls = kernel_.calls.size();
    std::thread([&] {
        EXPECT_EQ(gCoreHlpModule, nullptr);
        EXPECT_EQ(HlpBlur(nullptr, 1, 2, 3, 4, 5, 6), 77);
        EXPECT_EQ(gCoreHlpModule, nullptr);
    }).join();
    EXPECT_EQ(kernel_.calls.size(), kernelCalls);
}

TEST_F(CoreHlp, StubsWithoutAHelperAnswerNothing) {
    EXPECT_EQ(HlpBlur(nullptr, 1, 2, 3, 4, 5, 6), 0);
    EXPECT_THAT(kernel_.calls,
                ElementsAre(kAttempt0, kAttempt1, kAttempt2, kMissing, "exit 61440"));
    EXPECT_THAT(gHelpers[0].calls, IsEmpty());
}

}  // namespace
}  // namespace vxgui
