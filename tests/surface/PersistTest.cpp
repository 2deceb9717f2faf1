#include <cstring>

#include "tests/surface/SurfaceSupport.h"
#include "vxgui/platform/codecs.h"
#include "vxgui/platform/core7.h"

namespace vxgui::test {
namespace {

constexpr char kKey[] = "cAlphaDIBSection";
constexpr char kCompressedKey[] = "cAlphaDIBSection_compressed";

ByteArray Serialized(const Ref<cAlphaDIBSection>& surface, int16_t flags = 0) {
    ByteArray bytes{1, 2, 3};
    surface->ToByteArray(bytes, flags);
    return bytes;
}

template <class T>
T At(const ByteArray& bytes, size_t offset) {
    T value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

template <class T>
ByteArray With(ByteArray bytes, size_t offset, T value) {
    std::memcpy(bytes.data() + offset, &value, sizeof value);
    return bytes;
}

Ref<cAlphaDIBSection> MakeSample() {
    const auto surface = MakeCountedSurface(3, 2);
    surface->TransparentColor(0x123456);
    surface->UseDrawDib(false);
    return surface;
}

TEST(SurfacePersist, EveryFieldOfTheSerializedFormStandsInItsPlace) {
    const auto surface = MakeSample();
    const ByteArray bytes = Serialized(surface, 0x0705);
    ASSERT_EQ(bytes.size(), 84u);
    EXPECT_EQ(std::memcmp(bytes.data(), "ADIB", 4), 0);
    EXPECT_EQ(At<uint16_t>(bytes, 4), 2);
    EXPECT_EQ(At<uint16_t>(bytes, 6), 0x0705);
    EXPECT_EQ(At<uint32_t>(bytes, 8), 20u);
    EXPECT_EQ(At<int32_t>(bytes, 12), 0x123456);
    EXPECT_EQ(At<uint32_t>(bytes, 16), 2u);
    EXPECT_EQ(At<uint32_t>(bytes, 20), 40u);
    EXPECT_EQ(At<int32_t>(bytes, 24), 3);
    EXPECT_EQ(At<int32_t>(bytes, 28), 2);
    EXPECT_EQ(At<uint16_t>(bytes, 32), 1);
    EXPECT_EQ(At<uint16_t>(bytes, 34), 32);
    EXPECT_EQ(At<uint32_t>(bytes, 36), 0u);
    EXPECT_EQ(At<uint32_t>(bytes, 40), 24u);
    for (size_t offset = 44; offset < 60; offset += 4) EXPECT_EQ(At<uint32_t>(bytes, offset), 0u);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(At<int32_t>(bytes, 60 + 4 * static_cast<size_t>(i)), i + 1);
    }
}

TEST(SurfacePersist, TwoPixelsMakeSixtyEightBytes) {
    const ByteArray bytes = Serialized(MakeCountedSurface(2, 1), 1);
    ASSERT_EQ(bytes.size(), 68u);
    const ByteArray start(bytes.begin(), bytes.begin() + 12);
    EXPECT_EQ(start, (ByteArray{'A', 'D', 'I', 'B', 2, 0, 1, 0, 20, 0, 0, 0}));
}

TEST(SurfacePersist, AnEmptySurfaceMakesSixtyBytesThatAreRefused) {
    const ByteArray bytes = Serialized(New<cAlphaDIBSection>());
    ASSERT_EQ(bytes.size(), 60u);
    EXPECT_EQ(ByteArray(bytes.begin() + 20, bytes.end()), ByteArray(40));
    const auto surface = MakeSample();
    EXPECT_FALSE(surface->FromByteArray(bytes));
    EXPECT_EQ(surface->GetPixel(0, 0), 4);
    const auto failed = New<cAlphaDIBSection>();
    failed->Create(100000, 100000);
    EXPECT_EQ(Serialized(failed).size(), 60u);
}

TEST(SurfacePersist, AllComesBack) {
    const auto surface = MakeSample();
    surface->PreMultiplyAlpha();
    const auto copy = MakeSurface(1, 1);
    ASSERT_TRUE(copy->FromByteArray(Serialized(surface)));
    EXPECT_EQ(MemoryOf(copy), MemoryOf(surface));
    EXPECT_EQ(copy->Width(), 3);
    EXPECT_EQ(copy->Height(), 2);
    EXPECT_EQ(copy->TransparentColor(), 0x123456);
    EXPECT_EQ(copy->Flags(), 0x80000002u);
    EXPECT_EQ(gdi::GetPixel(copy->hDC(), 0, 1), gdi::GetPixel(surface->hDC(), 0, 1));
}

TEST(SurfacePersist, APremultipliedSurfaceComesBackAsOne) {
    const auto surface = MakeSurface(1, 1, Pixel(200, 200, 200, 127));
    surface->PreMultiplyAlpha();
    const auto copy = New<cAlphaDIBSection>();
    ASSERT_TRUE(copy->FromByteArray(Serialized(surface)));
    copy->PreMultiplyAlpha();
    EXPECT_EQ(MemoryOf(copy), MemoryOf(surface));
}

TEST(SurfacePersist, ABlockOfTwentyBytesIsRefused) {
    const ByteArray bytes = Serialized(MakeSample());
    const auto surface = MakeSurface(1, 1);
    EXPECT_FALSE(surface->FromLp(bytes.data(), 20));
    EXPECT_FALSE(surface->FromLp(nullptr, 84));
    EXPECT_FALSE(surface->FromLp(bytes.data(), -84));
    EXPECT_FALSE(surface->FromByteArray({}));
    EXPECT_EQ(surface->Width(), 1);
}

TEST(SurfacePersist, VersionOneIsReadLikeTwoAndThreeIsRefused) {
    const ByteArray bytes = Serialized(MakeSample());
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->FromByteArray(With<uint16_t>(bytes, 4, 1)));
    EXPECT_EQ(surface->GetPixel(0, 0), 4);
    EXPECT_FALSE(surface->FromByteArray(With<uint16_t>(bytes, 4, 3)));
    EXPECT_FALSE(surface->FromByteArray(With<uint16_t>(bytes, 4, 0)));
    EXPECT_FALSE(surface->FromByteArray(With<uint32_t>(bytes, 8, 24)));
    EXPECT_FALSE(surface->FromByteArray(With<char>(bytes, 0, 'a')));
}

TEST(SurfacePersist, TheFlagsWordMayBeAnythingOnReading) {
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->FromByteArray(With<uint16_t>(Serialized(MakeSample()), 6, 0xFFFF)));
    EXPECT_EQ(surface->Flags(), 2u);
}

TEST(SurfacePersist, MorePixelsThanFollowAreRefused) {
    const ByteArray bytes = Serialized(MakeSample());
    const auto surface = MakeSurface(1, 1);
    EXPECT_FALSE(surface->FromByteArray(With<uint32_t>(bytes, 40, 25)));
    EXPECT_EQ(surface->Width(), 1);
    EXPECT_TRUE(surface->FromByteArray(With<uint32_t>(bytes, 40, 20)));
    EXPECT_EQ(surface->GetPixel(1, 0), 5);
    EXPECT_EQ(surface->GetPixel(2, 0), 0);
}

TEST(SurfacePersist, PixelsBeyondTheBitmapAreNotWritten) {
    ByteArray bytes = With<int32_t>(Serialized(MakeSample()), 24, 1);
    bytes = With<int32_t>(bytes, 28, 1);
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->FromByteArray(bytes));
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>{ARGBFromValue(1)});
    EXPECT_EQ(Serialized(surface).size(), 84u);
}

TEST(SurfacePersist, AStoredHeaderDecidesDepthAndOrientationAndTheLoopsKeepToItsMemory) {
    const ByteArray bytes = Serialized(MakeSurface(6, 5, Pixel(9, 9, 9, 128)));
    for (const uint16_t depth : {uint16_t{1}, uint16_t{8}, uint16_t{24}, uint16_t{32}}) {
        for (const int32_t height : {5, -5}) {
            const auto surface = New<cAlphaDIBSection>();
            auto block = With<int32_t>(With<uint16_t>(bytes, 34, depth), 28, height);
            if (height < 0) block = With<uint32_t>(block, 20, 124);  // the longest header
            if (!surface->FromByteArray(block)) continue;
            GuardedTarget target(6, 5);
            surface->PreMultiplyAlpha();
            surface->RandomiseBits();
            surface->MaskFromColor(0);
            surface->SetTransColor2();
            surface->HasAlphaChannel();
            surface->AdjustHLS(20, 20, 20, true);
            surface->AdjustRGB(0.5F, 0.5F, 0.5F);
            surface->BeginAdjustColor();
            surface->ResetAdjustColor();
            surface->PaintPicture(target.dc());
            surface->AlphaPaintPicture(target.dc());
            const auto copy = New<cAlphaDIBSection>();
            copy->FromAlphaDIBSection(surface, 0, 0, 6, 5);
            EXPECT_EQ(Serialized(surface).size(), 180u);
            for (int i = -40; i < 40; ++i) surface->GetPixel(i, i);
        }
    }
}

TEST(SurfacePersist, ASmallBlockCannotAskForGigabytes) {
    ByteArray bytes = With<uint32_t>(Serialized(MakeSample()), 40, 0);
    bytes = With<int32_t>(With<int32_t>(bytes, 24, 32767), 28, 32767);
    const auto surface = MakeSurface(1, 1);
    EXPECT_FALSE(surface->FromByteArray(bytes));
    EXPECT_FALSE(surface->FromByteArray(With<int32_t>(bytes, 28, INT32_MIN)));
    EXPECT_EQ(surface->Width(), 1);
}

/// The start of a block, right before memory that nobody may read.
class CutBlock {
public:
    CutBlock(const ByteArray& block, size_t readable) : page_(sysconf(_SC_PAGESIZE)) {
        map_ = static_cast<uint8_t*>(
            mmap(nullptr, 2 * page_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        start_ = map_ + page_ - readable;
        std::memcpy(start_, block.data(), readable);
        mprotect(map_ + page_, page_, PROT_NONE);
    }
    ~CutBlock() { munmap(map_, 2 * page_); }
    CutBlock(const CutBlock&) = delete;
    CutBlock& operator=(const CutBlock&) = delete;

    const uint8_t* start() const { return start_; }

private:
    size_t page_;
    uint8_t* map_;
    uint8_t* start_;
};

TEST(SurfacePersist, ABlockThatCannotBeReadToItsEndIsRefused) {
    const ByteArray bytes = Serialized(MakeSample());
    const auto surface = MakeCountedSurface(1, 1);
    for (const size_t readable : {size_t{0}, size_t{19}, size_t{20}, size_t{59}, size_t{83}}) {
        const CutBlock block(bytes, readable);
        EXPECT_FALSE(surface->FromLp(block.start(), 84)) << readable;
        if (readable < 20) continue;
        EXPECT_FALSE(surface->DibFromLp(block.start() + 20, 64)) << readable;
    }
    EXPECT_EQ(surface->GetPixel(0, 0), 1);
    // A size that says more than the header needs isn't looked at.
    const CutBlock whole(bytes, 84);
    EXPECT_TRUE(surface->FromLp(whole.start(), 1000));
    EXPECT_EQ(surface->GetPixel(0, 0), 4);
}

TEST(SurfacePersist, ABlockMayLieInTheSurfacesOwnPixels) {
    const ByteArray bytes = Serialized(MakeSample());
    const auto surface = MakeSurface(21, 1);
    std::memcpy(surface->DIBSectionBitsPtr(), bytes.data(), bytes.size());
    ASSERT_TRUE(surface->FromLp(surface->DIBSectionBitsPtr(), 84));
    EXPECT_EQ(surface->GetPixel(0, 0), 4);
}

TEST(SurfacePersist, TheHeaderAndPixelsAloneBringNoFlagsAndLeaveTheCompatibleContext) {
    const ByteArray bytes = Serialized(MakeSample());
    const auto model = MakeSurface(1, 1);
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->CreateWithCompatibleDC(1, 1, model->hDC()));
    surface->TransparentColor(5);
    surface->UseDrawDib(false);
    EXPECT_TRUE(surface->DibFromLp(bytes.data() + 20, 64));
    EXPECT_EQ(surface->Flags(), 3u);
    EXPECT_EQ(surface->TransparentColor(), 5);
    EXPECT_FALSE(surface->DibFromLp(bytes.data() + 20, 39));
    EXPECT_FALSE(surface->DibFromLp(bytes.data() + 20, 63));
    EXPECT_FALSE(surface->DibFromLp(nullptr, 64));
    model->ClearUp();
    EXPECT_TRUE(surface->Create(1, 1));  // the context that has gone isn't asked any more
}

/// What must hold of a surface whatever it has read.
void ExpectAlive(const Ref<cAlphaDIBSection>& surface) {
    ASSERT_NE(surface->hDC(), nullptr);
    ASSERT_NE(surface->hDIB(), nullptr);
    surface->GetPixel(0, 0);
    surface->HasAlphaChannel();
}

TEST(SurfacePersist, EveryChangedByteIsReadOrRefusedAndTheOldSurfaceLives) {
    const ByteArray bytes = Serialized(MakeSample());
    int refused = 0;
    for (size_t at = 0; at < bytes.size(); ++at) {
        for (const uint8_t change : {0x01, 0x02, 0x10, 0x7F, 0x80, 0xFF}) {
            ByteArray changed = bytes;
            changed[at] ^= change;
            const auto surface = MakeCountedSurface(1, 2);
            const bool read = surface->FromByteArray(changed);
            if (!read) {
                ++refused;
                EXPECT_EQ(surface->Width(), 1);
                EXPECT_EQ(surface->Height(), 2);
                EXPECT_EQ(surface->GetPixel(0, 0), 2);
            }
            if (at < 4 || (at >= 8 && at < 12)) {
                EXPECT_FALSE(read) << at;
            }
            if (at >= 60 || (at >= 12 && at < 20)) {
                EXPECT_TRUE(read) << at;
            }
            ExpectAlive(surface);
        }
    }
    EXPECT_GT(refused, 60);
}

TEST(SurfacePersist, EveryTruncationIsRefusedAndTheOldSurfaceLives) {
    const ByteArray bytes = Serialized(MakeSample());
    for (size_t length = 0; length < bytes.size(); ++length) {
        const auto surface = MakeCountedSurface(1, 2);
        EXPECT_FALSE(
            surface->FromByteArray({bytes.begin(), bytes.begin() + static_cast<long>(length)}));
        EXPECT_EQ(surface->GetPixel(0, 0), 2);
        ExpectAlive(surface);
    }
}

TEST(SurfacePersist, PixelsThatHaveGoneAreWrittenAsZeroes) {
    const auto surface = MakeSample();
    gdi::DeleteObject(surface->ExtractDib());
    const ByteArray bytes = Serialized(surface);
    ASSERT_EQ(bytes.size(), 84u);
    EXPECT_EQ(ByteArray(bytes.begin() + 60, bytes.end()), ByteArray(24));
}

TEST(SurfaceEqual, ComparesPixelsSizeKeyAndFlags) {
    const auto surface = MakeSample();
    const auto same = MakeSample();
    EXPECT_TRUE(surface->Equal(same));
    EXPECT_TRUE(surface->Equal(surface));
    EXPECT_FALSE(surface->Equal(nullptr));
    EXPECT_FALSE(surface->Equal(New<cAlphaDIBSection>()));
    same->UseDrawDib(true);
    EXPECT_FALSE(surface->Equal(same));
    same->UseDrawDib(false);
    static_cast<ARGB*>(same->DIBSectionBitsPtr())[5].Alpha = 1;
    EXPECT_FALSE(surface->Equal(same));
}

TEST(SurfaceEqual, SamePixelsWithAnotherTransparentColorAreNotEqual) {
    const auto surface = MakeSample();
    const auto other = MakeSample();
    other->TransparentColor(0x123457);
    EXPECT_FALSE(surface->Equal(other));
}

TEST(SurfaceEqual, TheFlagsWordOfAStoredBlockPlaysNoPart) {
    const auto surface = MakeSample();
    const auto other = New<cAlphaDIBSection>();
    ASSERT_TRUE(other->FromByteArray(Serialized(surface, 1)));
    EXPECT_TRUE(surface->Equal(other));
}

Ref<cAlphaDIBSection> ReadBack(const Ref<ole::PropertyBag>& bag) {
    auto surface = MakeCountedSurface(1, 1);
    surface->ReadProperties(bag);
    return surface;
}

TEST(SurfaceBag, WithoutCompressionAPlainArrayAndAZeroAreStored) {
    const auto surface = MakeSample();
    const auto bag = New<ole::PropertyBag>();
    surface->WriteProperties(bag);
    EXPECT_EQ(bag->ReadProperty(kCompressedKey, 1), Variant(0));
    EXPECT_EQ(bag->ReadProperty(kKey), Variant(Serialized(surface, 0)));
    EXPECT_TRUE(ReadBack(bag)->Equal(surface));
}

TEST(SurfaceBag, WithCompressionTheArrayAloneIsStored) {
    const auto surface = MakeSample();
    const auto bag = New<ole::PropertyBag>();
    surface->WriteProperties(bag, 1);
    EXPECT_EQ(bag->Names(), std::vector<String>{kKey});
    const Variant value = bag->ReadProperty(kKey);
    ASSERT_TRUE(value.Is<ByteArray>());
    EXPECT_EQ(core7::Decompress(*value.As<ByteArray>()), Serialized(surface, 1));
    EXPECT_TRUE(ReadBack(bag)->Equal(surface));
}

TEST(SurfaceBag, ASurfaceStoredInItsOwnRightIsCompressed) {
    const auto surface = MakeCountedSurface(4, 3);
    const auto bag = New<ole::PropertyBag>(), inner = New<ole::PropertyBag>();
    bag->WriteProperty("surface", surface);
    surface->WriteProperties(inner, 1);
    EXPECT_EQ(bag->ReadProperty("surface"), Variant(inner->Contents()));
    const auto other = New<cAlphaDIBSection>();
    EXPECT_TRUE(bag->RestoreProperty("surface", *other));
    EXPECT_TRUE(other->Equal(surface));
}

TEST(SurfaceBag, APlainArrayWithoutTheCompressedKeyIsReadAsPlain) {
    const auto surface = MakeSample();
    const auto bag = New<ole::PropertyBag>();
    bag->WriteProperty(kKey, Serialized(surface));
    EXPECT_TRUE(ReadBack(bag)->Equal(surface));
}

TEST(SurfaceBag, WhatIsNoArrayOrDamagedLeavesTheSurface) {
    const auto old = MakeCountedSurface(1, 1);
    EXPECT_TRUE(ReadBack(New<ole::PropertyBag>())->Equal(old));
    const auto text = New<ole::PropertyBag>();
    text->WriteProperty(kKey, "ADIB");
    EXPECT_TRUE(ReadBack(text)->Equal(old));
    const auto damaged = New<ole::PropertyBag>();
    MakeSample()->WriteProperties(damaged, 1);
    ByteArray bytes = *damaged->ReadProperty(kKey).As<ByteArray>();
    bytes.back() ^= 0x55;
    damaged->WriteProperty(kKey, bytes);
    EXPECT_TRUE(ReadBack(damaged)->Equal(old));
    const auto cut = New<ole::PropertyBag>();
    cut->WriteProperty(kKey, ByteArray(bytes.begin(), bytes.begin() + 20));
    EXPECT_TRUE(ReadBack(cut)->Equal(old));
}

TEST(SurfaceBag, AnUnknownCompressedValueIsCompressed) {
    const auto surface = MakeSample();
    const auto bag = New<ole::PropertyBag>();
    surface->WriteProperties(bag, 1);
    bag->WriteProperty(kCompressedKey, 7);
    EXPECT_TRUE(ReadBack(bag)->Equal(surface));
    bag->WriteProperty(kCompressedKey, "many");
    EXPECT_THROW(ReadBack(bag), Error);
    EXPECT_THROW(surface->ReadProperties(nullptr), Error);
    EXPECT_THROW(surface->WriteProperties(nullptr), Error);
}

}  // namespace
}  // namespace vxgui::test
