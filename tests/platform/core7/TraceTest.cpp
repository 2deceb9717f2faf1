#include <gtest/gtest.h>

#include <thread>

#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

// Gathers the lines of the apartment for the length of a test.
class TraceTest : public ::testing::Test {
protected:
    struct Line {
        String application, text;
        int32_t level;
    };

    TraceTest() {
        SetTraceSink([this](const String& application, const String& text, int32_t level) {
            lines_.push_back({application, text, level});
        });
    }
    ~TraceTest() override { SetTraceSink({}); }

    std::vector<Line> lines_;
};

TEST_F(TraceTest, LinesReachTheSinkWithTheApplicationAndLevel) {
    const auto trace = CreateTrace();
    trace->Start("host", 1);
    trace->Write("started ", 4);
    ASSERT_EQ(lines_.size(), 1u);
    EXPECT_EQ(lines_[0].application, "host");
    EXPECT_EQ(lines_[0].text, "started ");
    EXPECT_EQ(lines_[0].level, 4);
}

TEST_F(TraceTest, LinesBelowTheStartLevelAreDropped) {
    const auto trace = CreateTrace();
    trace->Start("host", 3);
    trace->Write("low", 2);
    trace->Write("enough", 3);
    ASSERT_EQ(lines_.size(), 1u);
    EXPECT_EQ(lines_[0].text, "enough");
}

TEST_F(TraceTest, ATraceThatWasNotStartedWritesWithoutAName) {
    CreateTrace()->Write("early", 4);
    ASSERT_EQ(lines_.size(), 1u);
    EXPECT_EQ(lines_[0].application, "");
}

TEST_F(TraceTest, WithoutASinkLinesGoNowhere) {
    SetTraceSink({});
    CreateTrace()->Write("lost", 4);
    EXPECT_TRUE(lines_.empty());
}

TEST_F(TraceTest, ASinkMayTakeItselfAway) {
    int calls = 0;
    SetTraceSink([&calls](const String&, const String&, int32_t) {
        SetTraceSink({});
        ++calls;
    });
    const auto trace = CreateTrace();
    trace->Write("one", 4);
    trace->Write("two", 4);
    EXPECT_EQ(calls, 1);
}

TEST_F(TraceTest, AnotherApartmentHasASinkOfItsOwn) {
    std::thread([] { CreateTrace()->Write("elsewhere", 4); }).join();
    EXPECT_TRUE(lines_.empty());
}

}  // namespace
}  // namespace vxgui::core7
