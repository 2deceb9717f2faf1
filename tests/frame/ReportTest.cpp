#include "tests/frame/FrameTest.h"
#include "vxgui/frame/Report.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kEnd = "|VxGUI|10010";

class ReportTest : public FrameTest {
protected:
    std::string TextOf(const Failure& failure) {
        kernel_.calls.clear();
        ReportUnexpectedError("modDraw", "Public Function AlphaDibBits", failure);
        const std::string line = kernel_.calls.at(0);
        const size_t start = std::string("message ").size();
        return line.substr(start, line.size() - start - std::string(kEnd).size());
    }
};

const std::string kHead = "在过程 modDraw::Public Function AlphaDibBits 发生意外的错误: \r\n";

TEST_F(ReportTest, IsAnErrorBoxInTheForegroundUnderTheApplicationTitle) {
    ReportUnexpectedError("modDraw", "Public Function AlphaDibBits", {});
    EXPECT_THAT(kernel_.calls, ElementsAre("message " + kHead + kEnd));
}

TEST_F(ReportTest, WithoutAnyErrorIsTheHeadAlone) { EXPECT_EQ(TextOf({}), kHead); }

TEST_F(ReportTest, ShowsTheRunTimeErrorAndThenThePlatformError) {
    kernel::SetLastError(5);
    EXPECT_EQ(TextOf(Error(ErrorNumber::Subscript, "x", "Subscript out of range")),
              kHead +
                  "错误代码:9 0x9\r\n错误描述:Subscript out of range"
                  "\r\n系统错误代码:5 0x5\r\n系统错误描述:Access denied");
}

TEST_F(ReportTest, ShowsAPlatformErrorAlone) {
    kernel::SetLastError(5);
    EXPECT_EQ(TextOf({}), kHead + "\r\n系统错误代码:5 0x5\r\n系统错误描述:Access denied");
}

TEST_F(ReportTest, WritesHexadecimalDigitsInUpperCaseWithoutLeadingZeroes) {
    kernel::SetLastError(0x7FABCDEF);
    EXPECT_THAT(TextOf({}), ::testing::HasSubstr("系统错误代码:2141965807 0x7FABCDEF\r\n"));
}

TEST_F(ReportTest, ShowsANegativeNumberAsANegativeDecimalAndEightDigits) {
    EXPECT_EQ(TextOf(Error(-2147467259, "x", "Unspecified")),
              kHead + "错误代码:-2147467259 0x80004005\r\n错误描述:Unspecified");
    EXPECT_EQ(TextOf(Error(-1, "x", "")), kHead + "错误代码:-1 0xFFFFFFFF\r\n错误描述:");
}

TEST_F(ReportTest, ShowsTheLineNumberFirst) {
    EXPECT_EQ(TextOf({Error(ErrorNumber::Overflow, "x", "Overflow"), 120}),
              kHead + "错误行号:120\r\n错误代码:6 0x6\r\n错误描述:Overflow");
    Failure lineAlone;
    lineAlone.line = 7;
    EXPECT_EQ(TextOf(lineAlone), kHead + "错误行号:7\r\n");
}

TEST_F(ReportTest, MakesTheSystemInformationThatItNeeds) {
    TextOf({});
    EXPECT_EQ(gSysInfo, nullptr);
    kernel::SetLastError(5);
    TextOf({});
    EXPECT_NE(gSysInfo, nullptr);
}

TEST_F(ReportTest, PassesOnAFailureOfItsOwn) {
    gServices.createSystemInformation = []() -> Ref<core7::SystemInformation> {
        throw Error(ErrorNumber::ObjectNotSet, "services", "none");
    };
    kernel::SetLastError(5);
    EXPECT_THROW(ReportUnexpectedError("m", "p", {}), Error);
    EXPECT_THAT(kernel_.calls, IsEmpty());
}

TEST_F(ReportTest, HasNoMemory) {
    kernel::SetLastError(5);
    const std::string first = TextOf(Error(ErrorNumber::Overflow, "x", "Overflow"));
    EXPECT_EQ(TextOf(Error(ErrorNumber::Overflow, "x", "Overflow")), first);
    EXPECT_EQ(kernel::GetLastError(), 5u);
    kernel::SetLastError(0);
    EXPECT_EQ(TextOf({}), kHead);
}

constexpr ErrorReporter ReportError{"ThemeItem"};

TEST_F(ReportTest, OfAModuleCarriesItsName) {
    ReportError("Public Function LoadFromRes", Failure());
    EXPECT_THAT(kernel_.calls, ElementsAre("message 在过程 ThemeItem::Public Function LoadFromRes "
                                           "发生意外的错误: \r\n|VxGUI|10010"));
}

TEST_F(ReportTest, GuardReportsWhatItsBodyRaises) {
    EXPECT_FALSE(ReportError.Guard("p", [] { throw Error(ErrorNumber::Overflow, "x", "Over"); }));
    EXPECT_FALSE(ReportError.Guard("p", [] { throw std::bad_alloc(); }));
    EXPECT_THAT(kernel_.calls,
                ElementsAre("message 在过程 ThemeItem::p 发生意外的错误: \r\n错误代码:6 0x6\r\n"
                            "错误描述:Over|VxGUI|10010",
                            "message 在过程 ThemeItem::p 发生意外的错误: \r\n错误代码:7 0x7\r\n"
                            "错误描述:Out of memory|VxGUI|10010"));
}

TEST_F(ReportTest, GuardIsSilentAboutASuccess) {
    bool ran = false;
    EXPECT_TRUE(ReportError.Guard("p", [&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_THAT(kernel_.calls, IsEmpty());
}

}  // namespace
}  // namespace vxgui
