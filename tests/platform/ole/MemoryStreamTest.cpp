#include <gtest/gtest.h>

#include "vxgui/platform/ole_stream.h"

namespace vxgui::ole {
namespace {

TEST(MemoryStream, ReadsWhatItWasGiven) {
    const Ref<IStream> stream = CreateStreamOnHGlobal({1, 2, 3});
    EXPECT_EQ(stream->Size(), 3u);
    uint8_t bytes[4] = {9, 9, 9, 9};
    EXPECT_EQ(stream->Read(bytes, 2), 2u);
    EXPECT_EQ(bytes[1], 2);
    EXPECT_EQ(bytes[2], 9);
    EXPECT_EQ(stream->Read(bytes, 4), 1u) << "what is left";
    EXPECT_EQ(bytes[0], 3);
    EXPECT_EQ(stream->Read(bytes, 4), 0u);
}

TEST(MemoryStream, WritesOverAndBehindWhatIsThere) {
    const Ref<IStream> stream = CreateStreamOnHGlobal({1, 2, 3});
    ASSERT_EQ(stream->Seek(2, SeekOrigin::Set), 2u);
    const uint8_t more[] = {7, 8};
    EXPECT_EQ(stream->Write(more, 2), 2u);
    EXPECT_EQ(stream->Size(), 4u);
    ASSERT_EQ(stream->Seek(0, SeekOrigin::Set), 0u);
    uint8_t bytes[4];
    ASSERT_EQ(stream->Read(bytes, 4), 4u);
    EXPECT_EQ(std::vector<uint8_t>(bytes, bytes + 4), (std::vector<uint8_t>{1, 2, 7, 8}));
}

TEST(MemoryStream, SeeksFromThreePlaces) {
    const Ref<IStream> stream = CreateStreamOnHGlobal({1, 2, 3});
    EXPECT_EQ(stream->Seek(1, SeekOrigin::Set), 1u);
    EXPECT_EQ(stream->Seek(1, SeekOrigin::Current), 2u);
    EXPECT_EQ(stream->Seek(-1, SeekOrigin::End), 2u);
    EXPECT_EQ(stream->Seek(-1, SeekOrigin::Set), std::nullopt);
    EXPECT_EQ(stream->Seek(INT64_MAX, SeekOrigin::Current), std::nullopt);
    EXPECT_EQ(stream->Seek(0, SeekOrigin::Current), 2u) << "a refused move moves nothing";
}

TEST(MemoryStream, AGapThatWritingLeavesIsZero) {
    const Ref<IStream> stream = CreateStreamOnHGlobal();
    ASSERT_EQ(stream->Seek(2, SeekOrigin::Set), 2u);
    EXPECT_EQ(stream->Size(), 0u) << "moving alone lengthens nothing";
    const uint8_t byte = 5;
    stream->Write(&byte, 1);
    stream->Seek(0, SeekOrigin::Set);
    uint8_t bytes[3] = {9, 9, 9};
    ASSERT_EQ(stream->Read(bytes, 3), 3u);
    EXPECT_EQ(bytes[0], 0);
    EXPECT_EQ(bytes[2], 5);
}

TEST(MemoryStream, RefusesASizeThatNoMemoryHas) {
    const Ref<IStream> stream = CreateStreamOnHGlobal();
    EXPECT_FALSE(stream->SetSize(UINT64_MAX));
    ASSERT_TRUE(stream->Seek(INT64_MAX, SeekOrigin::Set));
    const uint8_t byte = 5;
    EXPECT_EQ(stream->Write(&byte, 1), 0u);
    EXPECT_EQ(stream->Size(), 0u);
    EXPECT_TRUE(stream->SetSize(4));
    EXPECT_EQ(stream->Size(), 4u);
}

}  // namespace
}  // namespace vxgui::ole
