#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/theme/RecordingSurface.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

using test::RecordingSurface;

struct Setting {
    int32_t imageW, imageH, count, frame;
    bool vertical;
    int32_t tile, tileLeft, tileTop, tileRight, tileBottom;
    int32_t mL, mT, mR, mB;
    int32_t xD, yD, wD, hD;
};

/// The pieces of a background by plain arithmetic, a name for each edge and size, with nothing
/// shared between the two axes.
class Reference {
public:
    explicit Reference(const Setting& setting) : s(setting) {}

    std::vector<std::string> Paint() {
        if (s.frame < 0 || s.frame >= s.count) return {};
        MeasureFrame();
        MeasureEdges();
        MeasureMiddle();
        CutSources();
        if (dstTopH > 0) PaintTop();
        if (dstMidH > 0) PaintMiddle();
        if (dstBottomH > 0) PaintBottom();
        return calls;
    }

private:
    void MeasureFrame() {
        frameW = s.imageW;
        frameH = s.imageH;
        srcX = srcY = 0;
        if (s.count < 2) return;
        if (s.vertical) {
            frameH = s.imageH / s.count;
            srcY = frameH * s.frame;
        } else {
            frameW = s.imageW / s.count;
            srcX = frameW * s.frame;
        }
    }

    void MeasureEdges() {
        dstLeftW = std::min(s.mL, s.wD);
        dstTopH = std::min(s.mT, s.hD);
        if (s.mL > frameW) dstLeftW = frameW;
        if (s.mT > frameH) dstTopH = frameH;
        srcLeftW = s.mL;
        srcTopH = s.mT;
        dstRightW = std::min(s.mR, s.wD);
        dstBottomH = std::min(s.mB, s.hD);
        dstRightX = s.xD + s.wD - dstRightW;
        dstBottomY = s.yD + s.hD - dstBottomH;
        srcRightW = std::min(s.mR, frameW);
        srcBottomH = std::min(s.mB, frameH);
        srcRightX = srcX + frameW - srcRightW;
        srcBottomY = srcY + frameH - srcBottomH;
    }

    void MeasureMiddle() {
        dstMidX = s.xD + dstLeftW;
        dstMidY = s.yD + dstTopH;
        dstMidW = dstRightX - dstMidX;
        dstMidH = dstBottomY - dstMidY;
        srcMidX = srcX + srcLeftW;
        srcMidY = srcY + srcTopH;
        srcMidW = srcRightX - srcMidX;
        srcMidH = srcBottomY - srcMidY;
    }

    void CutSources() {
        srcLeftW = std::min(srcLeftW, dstLeftW);
        srcTopH = std::min(srcTopH, dstTopH);
        srcMidW = std::min(srcMidW, dstMidW);
        srcMidH = std::min(srcMidH, dstMidH);
        if (srcRightW > dstRightW) {
            srcRightX += srcRightW - dstRightW;
            srcRightW = dstRightW;
        }
        if (srcBottomH > dstBottomH) {
            srcBottomY += srcBottomH - dstBottomH;
            srcBottomH = dstBottomH;
        }
        for (int32_t* size : {&srcLeftW, &srcTopH, &srcMidW, &srcMidH, &srcRightW, &srcBottomH}) {
            if (*size < 1) *size = 1;
        }
    }

    void PaintTop() {
        if (dstLeftW > 0) Piece(s.xD, s.yD, dstLeftW, dstTopH, srcX, srcY, srcLeftW, srcTopH);
        if (dstMidW > 0) PaintRowEdge(s.tileTop, s.yD, dstTopH, srcY, srcTopH);
        if (dstRightW > 0)
            Piece(dstRightX, s.yD, dstRightW, dstTopH, srcRightX, srcY, srcRightW, srcTopH);
    }

    void PaintMiddle() {
        if (dstLeftW > 0) PaintColumnEdge(s.tileLeft, s.xD, dstLeftW, srcX, srcLeftW);
        if (dstMidW > 0) PaintCentre();
        if (dstRightW > 0) PaintColumnEdge(s.tileRight, dstRightX, dstRightW, srcRightX, srcRightW);
    }

    void PaintBottom() {
        if (dstLeftW > 0)
            Piece(s.xD, dstBottomY, dstLeftW, dstBottomH, srcX, srcBottomY, srcLeftW, srcBottomH);
        if (dstMidW > 0) PaintRowEdge(s.tileBottom, dstBottomY, dstBottomH, srcBottomY, srcBottomH);
        if (dstRightW > 0)
            Piece(dstRightX, dstBottomY, dstRightW, dstBottomH, srcRightX, srcBottomY, srcRightW,
                  srcBottomH);
    }

    void PaintRowEdge(int32_t tiled, int32_t y, int32_t h, int32_t sy, int32_t sh) {
        if (!tiled || srcMidW <= 1) return Piece(dstMidX, y, dstMidW, h, srcMidX, sy, srcMidW, sh);
        for (int32_t x = dstMidX; x < dstRightX; x += srcMidW) {
            const int32_t n = std::min(srcMidW, dstRightX - x);
            Piece(x, y, n, h, srcMidX, sy, n, sh);
        }
    }

    void PaintColumnEdge(int32_t tiled, int32_t x, int32_t w, int32_t sx, int32_t sw) {
        if (!tiled || srcMidH <= 1) return Piece(x, dstMidY, w, dstMidH, sx, srcMidY, sw, srcMidH);
        for (int32_t y = dstMidY; y < dstBottomY; y += srcMidH) {
            const int32_t n = std::min(srcMidH, dstBottomY - y);
            Piece(x, y, w, n, sx, srcMidY, sw, n);
        }
    }

    void PaintCentre() {
        switch (s.tile) {
            case 1:
                return srcMidH > 1 ? TileBothWays() : TileAcross();
            case 2:
                return TileAcross();
            case 3:
                return TileDown();
            case 4:
                return CopyAndFill();
            default:
                return Plain();
        }
    }

    void Plain() { Piece(dstMidX, dstMidY, dstMidW, dstMidH, srcMidX, srcMidY, srcMidW, srcMidH); }

    void TileAcross() {
        if (srcMidW < 2) return Plain();
        for (int32_t x = dstMidX; x < dstRightX; x += srcMidW) {
            const int32_t n = std::min(srcMidW, dstRightX - x);
            Piece(x, dstMidY, n, dstMidH, srcMidX, srcMidY, n, srcMidH);
        }
    }

    void TileDown() {
        if (srcMidH < 2) return Plain();
        for (int32_t y = dstMidY; y < dstBottomY; y += srcMidH) {
            const int32_t m = std::min(srcMidH, dstBottomY - y);
            Piece(dstMidX, y, dstMidW, m, srcMidX, srcMidY, srcMidW, m);
        }
    }

    void TileBothWays() {
        if (srcMidW < 2) return TileDown();
        for (int32_t y = dstMidY; y < dstBottomY; y += srcMidH) {
            const int32_t m = std::min(srcMidH, dstBottomY - y);
            for (int32_t x = dstMidX; x < dstRightX; x += srcMidW) {
                const int32_t n = std::min(srcMidW, dstRightX - x);
                Piece(x, y, n, m, srcMidX, srcMidY, n, m);
            }
        }
    }

    void Fill(int32_t x, int32_t y, int32_t w, int32_t h) {
        Piece(x, y, w, h, srcMidX, srcMidY, 1, 1);
    }

    void CopyAndFill() {
        const int32_t hw = (dstMidW - srcMidW) / 2, hh = (dstMidH - srcMidH) / 2;
        const bool wider = dstMidW > srcMidW, higher = dstMidH > srcMidH;
        const int32_t cutX = srcMidX + (srcMidW - dstMidW) / 2;
        const int32_t cutY = srcMidY + (srcMidH - dstMidH) / 2;
        const int32_t restX = dstMidX + hw + srcMidW, restW = dstMidW - hw - srcMidW;
        const int32_t restY = dstMidY + hh + srcMidH, restH = dstMidH - srcMidH - hh;
        if (wider && higher) {
            Fill(dstMidX, dstMidY, dstMidW, hh);
            Fill(dstMidX, dstMidY + hh, hw, srcMidH);
            Piece(dstMidX + hw, dstMidY + hh, srcMidW, srcMidH, srcMidX, srcMidY, srcMidW, srcMidH);
            Fill(restX, dstMidY + hh, restW, srcMidH);
            Fill(dstMidX, restY, dstMidW, restH);
        } else if (wider) {
            Fill(dstMidX, dstMidY, hw, dstMidH);
            Piece(dstMidX + hw, dstMidY, srcMidW, dstMidH, srcMidX, cutY, srcMidW, dstMidH);
            Fill(restX, dstMidY, restW, dstMidH);
        } else if (higher) {
            Fill(dstMidX, dstMidY, dstMidW, hh);
            Piece(dstMidX, dstMidY + hh, dstMidW, srcMidH, cutX, srcMidY, dstMidW, srcMidH);
            Fill(dstMidX, restY, dstMidW, restH);
        } else {
            Piece(dstMidX, dstMidY, dstMidW, dstMidH, cutX, cutY, dstMidW, dstMidH);
        }
    }

    void Piece(int32_t x, int32_t y, int32_t w, int32_t h, int32_t sx, int32_t sy, int32_t sw,
               int32_t sh) {
        std::string line = "copy";
        for (const int32_t number : {x, y, w, h, sx, sy, sw, sh})
            line += " " + std::to_string(number);
        calls.push_back(line);
    }

    const Setting s;
    int32_t frameW = 0, frameH = 0, srcX = 0, srcY = 0;
    int32_t dstLeftW = 0, dstTopH = 0, dstRightW = 0, dstBottomH = 0, dstRightX = 0, dstBottomY = 0;
    int32_t dstMidX = 0, dstMidY = 0, dstMidW = 0, dstMidH = 0;
    int32_t srcLeftW = 0, srcTopH = 0, srcRightW = 0, srcBottomH = 0, srcRightX = 0, srcBottomY = 0;
    int32_t srcMidX = 0, srcMidY = 0, srcMidW = 0, srcMidH = 0;
    std::vector<std::string> calls;
};

std::vector<std::string> PaintedCalls(const Setting& s) {
    const Ref<RecordingSurface> image = New<RecordingSurface>(s.imageW, s.imageH);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(image, s.count, s.vertical, Normal);
    item->SetTile(s.tile, s.tileLeft, s.tileTop, s.tileRight, s.tileBottom);
    item->SetImageMargin(s.mL, s.mT, s.mR, s.mB);
    item->DrawBackground(nullptr, s.xD, s.yD, s.wD, s.hD, s.frame, -1);
    return image->calls;
}

TEST(DrawBackgroundPieces, AreThoseOfThePlainArithmetic) {
    std::mt19937 random(11);
    const auto pick = [&](int32_t from, int32_t to) {
        return std::uniform_int_distribution<int32_t>(from, to)(random);
    };
    for (int i = 0; i < 20000; ++i) {
        const int32_t count = pick(1, 5);
        // Small margins and large ones, even some below 0, in images and areas of every proportion.
        const int32_t margin = pick(0, 2) == 0 ? 30 : 6;
        const Setting s{pick(1, 40),      pick(1, 40),      count,
                        pick(-2, count),  pick(0, 1) == 1,  pick(0, 6),
                        pick(0, 1),       pick(0, 1),       pick(0, 1),
                        pick(0, 1),       pick(-2, margin), pick(-2, margin),
                        pick(-2, margin), pick(-2, margin), pick(-20, 20),
                        pick(-20, 20),    pick(-3, 60),     pick(-3, 60)};
        if (s.frame == -1) continue;  // stands for the state's frame
        ASSERT_EQ(PaintedCalls(s), Reference(s).Paint())
            << i << ": image " << s.imageW << "x" << s.imageH << " of " << s.count << ", margins "
            << s.mL << " " << s.mT << " " << s.mR << " " << s.mB << ", area " << s.wD << "x" << s.hD
            << ", tile " << s.tile;
    }
}

}  // namespace
}  // namespace vxgui
