#include <memory>
#include <random>

#include "BlitModel.h"

namespace vxgui::gdi {
namespace {

class Dice {
public:
    explicit Dice(uint32_t seed) : engine_(seed) {}
    int Roll(int low, int high) {
        return low + static_cast<int>(engine_() % static_cast<uint32_t>(high - low + 1));
    }
    uint32_t Word() { return engine_(); }

private:
    std::mt19937 engine_;
};

// A picture of random form in a context, and its model.
struct Pair {
    std::unique_ptr<Canvas> canvas;
    ModelPicture model;
};

constexpr COLORREF kBrushColors[] = {0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0x000000};

std::unique_ptr<Canvas> MakeCanvas(Dice& dice, ModelPicture& model) {
    if (dice.Roll(0, 4) == 0) {
        model.depth = 1;
        return std::make_unique<Canvas>(CreateBitmap(model.width, model.height, 1, 1, nullptr));
    }
    constexpr int kDepths[] = {1, 8, 24, 32, 32, 32};
    model.depth = kDepths[dice.Roll(0, 5)];
    DibInfo info = DibOf(model.width, dice.Roll(0, 1) ? model.height : -model.height, model.depth);
    if (model.depth > 8) return std::make_unique<Canvas>(info);
    for (size_t i = 0; i < size_t{1} << model.depth; ++i) {
        // Few distinct colours, so that tables meet exactly now and then.
        const auto grey = static_cast<BYTE>(dice.Roll(0, 15) * 17);
        info.colors[i] = {grey, static_cast<BYTE>(dice.Roll(0, 1) * 255), grey, 0};
        model.palette.push_back(static_cast<uint32_t>(info.colors[i].rgbBlue |
                                                      info.colors[i].rgbGreen << 8 | grey << 16));
    }
    return std::make_unique<Canvas>(info);
}

void SetColors(Dice& dice, Pair& pair) {
    DcState& state = FindContext(pair.canvas->dc)->state;
    state.textColor = static_cast<COLORREF>(dice.Roll(0, 1) * 0xFF);
    state.backColor = static_cast<COLORREF>(dice.Roll(0, 1) * 0xFFFFFF);
    pair.model.zero = state.textColor != 0 ? 0xFF0000u : 0u;
    pair.model.one = state.backColor;
    const int brush = dice.Roll(WHITE_BRUSH, BLACK_BRUSH);
    SelectObject(pair.canvas->dc, GetStockObject(brush));
    pair.model.brush = kBrushColors[brush];
}

void FillAtRandom(Dice& dice, Pair& pair) {
    for (int y = 0; y < pair.model.height; ++y) {
        for (int x = 0; x < pair.model.width; ++x) {
            pair.model.At(x, y) = dice.Word() & pair.model.Mask();
            pair.canvas->Put(x, y, pair.model.At(x, y));
        }
    }
}

// One, two or three rectangles, or no clip.
void ClipAtRandom(Dice& dice, Pair& pair) {
    const int count = dice.Roll(0, 3);
    if (count == 0) return;
    ModelPicture& model = pair.model;
    model.mayDraw.assign(model.mayDraw.size(), false);
    HRGN clip = CreateRectRgn(0, 0, 0, 0);
    for (int i = 0; i < count; ++i) {
        const int left = dice.Roll(-3, model.width);
        const int top = dice.Roll(-3, model.height);
        const int right = left + dice.Roll(0, 12);
        const int bottom = top + dice.Roll(0, 12);
        HRGN part = CreateRectRgn(left, top, right, bottom);
        CombineRgn(clip, clip, part, RGN_OR);
        DeleteObject(part);
        for (int y = std::max(top, 0); y < std::min(bottom, model.height); ++y) {
            for (int x = std::max(left, 0); x < std::min(right, model.width); ++x) {
                model.mayDraw[static_cast<size_t>(y * model.width + x)] = true;
            }
        }
    }
    SelectObject(pair.canvas->dc, clip);
    DeleteObject(clip);
}

Pair MakePair(Dice& dice) {
    Pair pair;
    pair.model.width = dice.Roll(1, 24);
    pair.model.height = dice.Roll(1, 12);
    const auto count = static_cast<size_t>(pair.model.width * pair.model.height);
    pair.model.words.resize(count);
    pair.model.mayDraw.assign(count, true);
    pair.canvas = MakeCanvas(dice, pair.model);
    SetColors(dice, pair);
    FillAtRandom(dice, pair);
    ClipAtRandom(dice, pair);
    return pair;
}

ModelBlit BlitAtRandom(Dice& dice) {
    ModelBlit blit{};
    blit.x = dice.Roll(-8, 26);
    blit.y = dice.Roll(-8, 14);
    blit.width = dice.Roll(-20, 30);
    blit.height = dice.Roll(-12, 16);
    blit.sourceX = dice.Roll(-8, 26);
    blit.sourceY = dice.Roll(-8, 14);
    blit.sourceWidth = dice.Roll(0, 2) ? blit.width : dice.Roll(-20, 30);
    blit.sourceHeight = dice.Roll(0, 2) ? blit.height : dice.Roll(-12, 16);
    blit.code = static_cast<uint32_t>(dice.Roll(0, 2) ? dice.Roll(0, 255) : 0xCC);
    return blit;
}

BOOL RunBlit(const ModelBlit& blit, HDC target, HDC source) {
    const DWORD rop = blit.code << 16;
    if (blit.width == blit.sourceWidth && blit.height == blit.sourceHeight) {
        return BitBlt(target, blit.x, blit.y, blit.width, blit.height, source, blit.sourceX,
                      blit.sourceY, rop);
    }
    return StretchBlt(target, blit.x, blit.y, blit.width, blit.height, source, blit.sourceX,
                      blit.sourceY, blit.sourceWidth, blit.sourceHeight, rop);
}

std::string Describe(uint32_t seed, const ModelBlit& b, const ModelPicture& to,
                     const ModelPicture& from) {
    char text[400];
    std::snprintf(text, sizeof(text),
                  "seed %u: code %02X, (%d, %d) %d x %d of %d x %d x %d bits%s <- (%d, %d) "
                  "%d x %d of %d x %d x %d bits%s",
                  seed, b.code, b.x, b.y, b.width, b.height, to.width, to.height, to.depth,
                  to.palette.empty() ? "" : " with colours", b.sourceX, b.sourceY, b.sourceWidth,
                  b.sourceHeight, from.width, from.height, from.depth,
                  from.palette.empty() ? "" : " with colours");
    return text;
}

// Where the words differ first, or nothing.
std::string FirstDifference(const Canvas& canvas, const ModelPicture& model) {
    for (int y = 0; y < model.height; ++y) {
        for (int x = 0; x < model.width; ++x) {
            const uint32_t word = canvas.At(x, y);
            if (word == model.At(x, y)) continue;
            char text[100];
            std::snprintf(text, sizeof(text), "at (%d, %d): is %08X, should be %08X", x, y, word,
                          model.At(x, y));
            return text;
        }
    }
    return {};
}

TEST(BlitModel, RandomBlitsAgreeWithTheLoopOverSinglePixels) {
    for (uint32_t seed = 1; seed <= 6000; ++seed) {
        Dice dice(seed);
        Pair target = MakePair(dice);
        Pair source = MakePair(dice);
        for (int i = 0; i < 3; ++i) {
            const ModelBlit blit = BlitAtRandom(dice);
            ModelRun(target.model, source.model, blit);
            ASSERT_TRUE(RunBlit(blit, target.canvas->dc, source.canvas->dc));
            ASSERT_EQ(FirstDifference(*target.canvas, target.model), "")
                << Describe(seed, blit, target.model, source.model);
        }
        ASSERT_EQ(FirstDifference(*source.canvas, source.model), "") << "source, seed " << seed;
    }
}

TEST(BlitModel, RandomBlitsWithinOneBitmapAgreeToo) {
    for (uint32_t seed = 1; seed <= 4000; ++seed) {
        Dice dice(seed);
        Pair pair = MakePair(dice);
        for (int i = 0; i < 3; ++i) {
            const ModelBlit blit = BlitAtRandom(dice);
            ModelRun(pair.model, pair.model, blit);
            ASSERT_TRUE(RunBlit(blit, pair.canvas->dc, pair.canvas->dc));
            ASSERT_EQ(FirstDifference(*pair.canvas, pair.model), "")
                << Describe(seed, blit, pair.model, pair.model);
        }
    }
}

TEST(BlitModel, RandomBlitsToAHostTouchNothingBesideItsPixels) {
    for (uint32_t seed = 1; seed <= 1000; ++seed) {
        Dice dice(seed);
        Pair source = MakePair(dice);
        GuardedHost host(dice.Roll(1, 24), dice.Roll(1, 12), dice.Roll(0, 1) != 0,
                         dice.Roll(0, 1) != 0);
        for (int i = 0; i < 3; ++i)
            ASSERT_TRUE(RunBlit(BlitAtRandom(dice), host.dc, source.canvas->dc));
        ASSERT_TRUE(host.Intact()) << "seed " << seed;
    }
}

}  // namespace
}  // namespace vxgui::gdi
