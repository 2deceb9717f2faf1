#include "vxgui/platform/gdi/Modules.h"

#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

using Words = std::vector<uint32_t>;

kernel::FARPROC ExportOf(const char* module, const char* name) {
    kernel::Kernel& kernel = kernel::TheKernel();
    return kernel.GetProcAddress(kernel.LoadLibraryA(module), name);
}

template <class Function>
kernel::FARPROC Address(Function* function) {
    return reinterpret_cast<kernel::FARPROC>(function);
}

TEST(Modules, TheExportsAreFoundByName) {
    EXPECT_EQ(ExportOf("msimg32.dll", "AlphaBlend"), Address(AlphaBlend));
    EXPECT_EQ(ExportOf("msimg32.dll", "TransparentBlt"), Address(TransparentBlt));
    EXPECT_EQ(ExportOf("msimg32.dll", "GradientFill"), Address(GradientFill));
    EXPECT_EQ(ExportOf("msvfw32.dll", "DrawDibOpen"), Address(DrawDibOpen));
    EXPECT_EQ(ExportOf("msvfw32.dll", "DrawDibClose"), Address(DrawDibClose));
    EXPECT_EQ(ExportOf("msvfw32.dll", "DrawDibDraw"), Address(DrawDibDraw));
    EXPECT_EQ(ExportOf("msimg32.dll", "DrawDibOpen"), nullptr);
}

class DrawDib : public testing::Test {
protected:
    DrawDib() : drawer_(DrawDibOpen()) {}
    ~DrawDib() override { EXPECT_TRUE(DrawDibClose(drawer_)); }

    BOOL Draw(const Canvas& target, const DibInfo& info, const void* bits, RECT to, RECT from) {
        return DrawDibDraw(drawer_, target.dc, to.left, to.top, to.right, to.bottom, &info.header,
                           bits, from.left, from.top, from.right, from.bottom, 0);
    }

    HDRAWDIB drawer_;
};

constexpr uint32_t kBottomUp[] = {4, 5, 6, 1, 2, 3};

TEST_F(DrawDib, SourceCoordinatesCountFromTheTop) {
    Canvas target(3, 2);
    EXPECT_TRUE(Draw(target, DibOf(3, 2, 32), kBottomUp, {0, 0, 3, 2}, {0, 0, 3, 2}));
    EXPECT_EQ(target.Words(), (Words{1, 2, 3, 4, 5, 6}));
    target.Fill(0);
    EXPECT_TRUE(Draw(target, DibOf(3, 2, 32), kBottomUp, {1, 0, 2, 1}, {0, 0, 2, 1}));
    EXPECT_EQ(target.Words(), (Words{0, 1, 2, 0, 0, 0}));
    EXPECT_TRUE(Draw(target, DibOf(3, -2, 32), kBottomUp, {0, 1, 3, 1}, {0, 0, 3, 1}));
    EXPECT_EQ(target.Words(), (Words{0, 1, 2, 4, 5, 6}));
}

TEST_F(DrawDib, MinusOneMeansTheNaturalSize) {
    Canvas target(5, 3);
    EXPECT_TRUE(Draw(target, DibOf(3, 2, 32), kBottomUp, {1, 1, -1, -1}, {0, 0, -1, -1}));
    EXPECT_EQ(target.Words(), (Words{0, 0, 0, 0, 0,  //
                                     0, 1, 2, 3, 0,  //
                                     0, 4, 5, 6, 0}));
    target.Fill(0);
    EXPECT_TRUE(Draw(target, DibOf(3, 2, 32), kBottomUp, {0, 0, -1, -1}, {1, 1, 2, 1}));
    EXPECT_EQ(target.At(0, 0), 5u);
    EXPECT_EQ(target.At(1, 0), 6u);
    EXPECT_EQ(target.At(2, 0), 0u) << "a part of the picture has its own natural size";
}

TEST_F(DrawDib, StretchesLikeABlit) {
    Canvas source(3, 2);
    std::memcpy(source.bits, kBottomUp, sizeof(kBottomUp));
    Canvas expected(11, 7);
    Canvas target(11, 7);
    EXPECT_TRUE(StretchBlt(expected.dc, 1, 1, 9, 5, source.dc, 0, 0, 3, 2, SRCCOPY));
    EXPECT_TRUE(Draw(target, DibOf(3, 2, 32), kBottomUp, {1, 1, 9, 5}, {0, 0, 3, 2}));
    EXPECT_EQ(target.Words(), expected.Words());
}

TEST_F(DrawDib, APartOutsideThePictureIsntDrawn) {
    Canvas target(4, 1);
    target.Fill(9);
    EXPECT_TRUE(Draw(target, DibOf(3, 2, 32), kBottomUp, {0, 0, 4, 1}, {2, 0, 4, 1}));
    EXPECT_EQ(target.Words(), (Words{3, 9, 9, 9}));
}

TEST_F(DrawDib, ZeroExtentsDrawNothing) {
    Canvas target(1, 1);
    EXPECT_TRUE(Draw(target, DibOf(3, 2, 32), kBottomUp, {0, 0, 0, 1}, {0, 0, 3, 2}));
    EXPECT_EQ(target.At(0, 0), 0u);
}

TEST_F(DrawDib, WithoutBitsThePixelsStandBehindTheColours) {
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colors[2];
        uint8_t pixels[4];
    } packed{DibOf(2, 1, 8).header, {{1, 2, 3, 0}, {4, 5, 6, 0}}, {1, 0, 0, 0}};
    packed.header.biClrUsed = 2;
    Canvas target(2, 1);
    EXPECT_TRUE(
        DrawDibDraw(drawer_, target.dc, 0, 0, 2, 1, &packed.header, nullptr, 0, 0, 2, 1, 0));
    EXPECT_EQ(target.Words(), (Words{0x060504, 0x030201}));
}

TEST_F(DrawDib, RefusesWhatItCantDraw) {
    Canvas target(3, 2);
    EXPECT_FALSE(Draw(target, DibOf(3, 2, 16), kBottomUp, {0, 0, 3, 2}, {0, 0, 3, 2}));
    EXPECT_FALSE(Draw(target, DibOf(0, 0, 32), kBottomUp, {0, 0, 3, 2}, {0, 0, 3, 2}));
    EXPECT_FALSE(DrawDibDraw(drawer_, target.dc, 0, 0, 3, 2, nullptr, kBottomUp, 0, 0, 3, 2, 0));
    const DibInfo info = DibOf(3, 2, 32);
    EXPECT_FALSE(
        DrawDibDraw(nullptr, target.dc, 0, 0, 3, 2, &info.header, kBottomUp, 0, 0, 3, 2, 0));
    EXPECT_FALSE(DrawDibDraw(drawer_, nullptr, 0, 0, 3, 2, &info.header, kBottomUp, 0, 0, 3, 2, 0));
    EXPECT_EQ(target.Words(), Words(6, 0));
}

TEST(DrawDibHandles, AreClosedOnce) {
    HDRAWDIB first = DrawDibOpen();
    HDRAWDIB second = DrawDibOpen();
    EXPECT_NE(first, second);
    EXPECT_TRUE(DrawDibClose(first));
    EXPECT_FALSE(DrawDibClose(first));
    EXPECT_TRUE(DrawDibClose(second));
    EXPECT_FALSE(DrawDibClose(nullptr));
}

}  // namespace
}  // namespace vxgui::gdi
