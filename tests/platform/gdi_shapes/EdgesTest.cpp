#include <limits>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

using namespace test;

// The letters of pictures: light or face, highlight, shadow, dark shadow, frame.
char LetterOf(uint32_t word) {
    switch (word) {
        case 0x00D4D0C8:
            return 'l';
        case 0x00FFFFFF:
            return 'h';
        case 0x00808080:
            return 's';
        case 0x00404040:
            return 'd';
        case 0x00000000:
            return 'b';
        default:
            return word == Canvas::kUntouched ? '.' : '?';
    }
}

class Edges : public testing::Test {
protected:
    Picture Drawn(UINT edge, UINT flags) {
        rect = RECT{0, 0, 6, 5};
        result = DrawEdge(canvas.dc, &rect, edge, flags);
        return Letters(6, 5);
    }
    Picture Letters(int width, int height) {
        Picture rows(static_cast<size_t>(height));
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                rows[static_cast<size_t>(y)] += LetterOf(canvas.Word(x, y));
        }
        return rows;
    }
    void Clear() {
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 6; ++x) canvas.Word(x, y) = Canvas::kUntouched;
        }
    }

    Canvas canvas{6, 5};
    RECT rect{};
    BOOL result = 0;
};

struct EdgeCase {
    const char* name;
    UINT edge, flags;
    Picture picture;
};

const EdgeCase kEdges[] = {
    {"raised", EDGE_RAISED, BF_RECT, {"llllld", "lhhhsd", "lh..sd", "lssssd", "dddddd"}},
    {"sunken", EDGE_SUNKEN, BF_RECT, {"sssssh", "sdddlh", "sd..lh", "sllllh", "hhhhhh"}},
    {"etched", EDGE_ETCHED, BF_RECT, {"sssssh", "shhhsh", "sh..sh", "sssssh", "hhhhhh"}},
    {"bump", EDGE_BUMP, BF_RECT, {"llllld", "ldddld", "ld..ld", "llllld", "dddddd"}},
    {"soft raised",
     EDGE_RAISED,
     BF_RECT | BF_SOFT,
     {"hhhhhd", "hlllsd", "hl..sd", "hssssd", "dddddd"}},
    {"soft sunken",
     EDGE_SUNKEN,
     BF_RECT | BF_SOFT,
     {"dddddh", "dssslh", "ds..lh", "dllllh", "hhhhhh"}},
    {"outer alone", BDR_RAISEDOUTER, BF_RECT, {"llllld", "l....d", "l....d", "l....d", "dddddd"}},
    {"inner alone", BDR_SUNKENINNER, BF_RECT, {"dddddl", "d....l", "d....l", "d....l", "llllll"}},
    {"flat", EDGE_RAISED, BF_RECT | BF_FLAT, {"ssssss", "slllls", "sl..ls", "slllls", "ssssss"}},
    {"mono", EDGE_SUNKEN, BF_RECT | BF_MONO, {"bbbbbb", "bhhhhb", "bh..hb", "bhhhhb", "bbbbbb"}},
    {"flat and both", 15, BF_RECT | BF_FLAT, {"ssssss", "slllls", "sl..ls", "slllls", "ssssss"}},
    {"middle",
     EDGE_SUNKEN,
     BF_RECT | BF_MIDDLE,
     {"sssssh", "sdddlh", "sdlllh", "sllllh", "hhhhhh"}},
    {"mono middle",
     BDR_SUNKENOUTER,
     BF_RECT | BF_MIDDLE | BF_MONO,
     {"bbbbbb", "bhhhhb", "bhhhhb", "bhhhhb", "bbbbbb"}},
    {"top left", EDGE_RAISED, BF_LEFT | BF_TOP, {"llllll", "lhhhhh", "lh....", "lh....", "lh...."}},
    {"bottom right",
     EDGE_RAISED,
     BF_RIGHT | BF_BOTTOM,
     {"....sd", "....sd", "....sd", "sssssd", "dddddd"}},
    {"left", EDGE_SUNKEN, BF_LEFT, {"sd....", "sd....", "sd....", "sd....", "sd...."}},
    {"top", EDGE_SUNKEN, BF_TOP, {"ssssss", "dddddd", "......", "......", "......"}},
    {"right", EDGE_SUNKEN, BF_RIGHT, {"....lh", "....lh", "....lh", "....lh", "....lh"}},
    {"bottom", EDGE_SUNKEN, BF_BOTTOM, {"......", "......", "......", "llllll", "hhhhhh"}},
    {"no ring", 0, BF_RECT, {"......", "......", "......", "......", "......"}},
    {"no side", EDGE_RAISED, 0, {"......", "......", "......", "......", "......"}},
};

TEST_F(Edges, HaveTheirPublishedColoursOnEachSide) {
    for (const EdgeCase& c : kEdges) {
        Clear();
        EXPECT_EQ(Drawn(c.edge, c.flags), c.picture) << c.name;
        EXPECT_TRUE(result) << c.name;
        EXPECT_EQ(rect, (RECT{0, 0, 6, 5})) << c.name;
    }
}

TEST_F(Edges, ARingCannotBeRaisedAndSunken) {
    for (const UINT edge : {3u, 12u, 15u, 7u}) {
        EXPECT_EQ(Drawn(edge, BF_RECT)[0], "......") << edge;
        EXPECT_FALSE(result) << edge;
    }
}

TEST_F(Edges, AdjustShrinksTheRectangleByWhatWasDrawn) {
    const struct {
        UINT edge, flags;
        RECT left;
    } cases[] = {
        {EDGE_RAISED, BF_RECT, {2, 2, 4, 3}},
        {BDR_SUNKENOUTER, BF_RECT, {1, 1, 5, 4}},
        {EDGE_RAISED, BF_LEFT, {2, 0, 6, 5}},
        {EDGE_ETCHED, BF_TOP | BF_RIGHT, {0, 2, 4, 5}},
        {EDGE_ETCHED, BF_BOTTOM | BF_MIDDLE, {0, 0, 6, 3}},
        {EDGE_RAISED, BF_DIAGONAL_ENDTOPRIGHT, {0, 2, 4, 5}},
        {0, BF_RECT, {0, 0, 6, 5}},
    };
    for (const auto& c : cases) {
        Drawn(c.edge, c.flags | BF_ADJUST);
        EXPECT_EQ(rect, c.left) << c.edge << ' ' << c.flags;
    }
}

const EdgeCase kDiagonals[] = {
    {"top right", EDGE_RAISED, BF_DIAGONAL_ENDTOPRIGHT, {"...l", "..lh", ".lh.", "lh.."}},
    {"top left", EDGE_RAISED, BF_DIAGONAL_ENDTOPLEFT, {"lh..", ".lh.", "..lh", "...l"}},
    {"bottom left", EDGE_RAISED, BF_DIAGONAL_ENDBOTTOMLEFT, {"..sd", ".sd.", "sd..", "d..."}},
    {"bottom right", EDGE_RAISED, BF_DIAGONAL_ENDBOTTOMRIGHT, {"d...", "sd..", ".sd.", "..sd"}},
    {"sunken", EDGE_SUNKEN, BF_DIAGONAL_ENDTOPRIGHT, {"...s", "..sd", ".sd.", "sd.."}},
    {"outer alone", BDR_SUNKENOUTER, BF_DIAGONAL_ENDBOTTOMLEFT, {"...h", "..h.", ".h..", "h..."}},
    {"mono middle",
     EDGE_RAISED,
     BF_DIAGONAL_ENDTOPRIGHT | BF_MIDDLE | BF_MONO,
     {"...b", "..bh", ".bhh", "bhhh"}},
    {"middle above",
     BDR_SUNKENINNER,
     BF_DIAGONAL_ENDTOPLEFT | BF_MIDDLE,
     {"dlll", ".dll", "..dl", "...d"}},
};

TEST_F(Edges, DiagonalsAreTheSidesOfAShapeDrawnClockwise) {
    for (const EdgeCase& c : kDiagonals) {
        Clear();
        rect = {0, 0, 4, 4};
        EXPECT_TRUE(DrawEdge(canvas.dc, &rect, c.edge, c.flags));
        EXPECT_EQ(Letters(4, 4), c.picture) << c.name;
    }
}

TEST_F(Edges, DiagonalsReachBothCornersOfAnyRectangle) {
    rect = {1, 0, 3, 5};
    DrawEdge(canvas.dc, &rect, BDR_RAISEDOUTER, BF_DIAGONAL_ENDTOPRIGHT);
    EXPECT_EQ(canvas.Word(1, 4), 0x00D4D0C8u);
    EXPECT_EQ(canvas.Word(2, 0), 0x00D4D0C8u);
    int count = 0;
    for (const std::string& row : Letters(6, 5)) count += std::ranges::count(row, 'l');
    EXPECT_EQ(count, 5);
}

TEST_F(Edges, SmallAndReversedRectanglesAreSafe) {
    for (const RECT& r : {RECT{2, 2, 3, 3}, RECT{2, 2, 2, 2}, RECT{4, 4, 1, 1}}) {
        Clear();
        rect = r;
        EXPECT_TRUE(DrawEdge(canvas.dc, &rect, EDGE_RAISED, BF_RECT | BF_MIDDLE));
        int untouched = 0;
        for (const std::string& row : Letters(6, 5)) untouched += std::ranges::count(row, '.');
        EXPECT_EQ(untouched, r.left < r.right ? 29 : 30) << r;
    }
}

TEST_F(Edges, HugeRectanglesAreSafe) {
    constexpr LONG kLow = std::numeric_limits<LONG>::min();
    constexpr LONG kHigh = std::numeric_limits<LONG>::max();
    for (const UINT flags : {BF_RECT, BF_DIAGONAL_ENDTOPRIGHT, BF_DIAGONAL_ENDBOTTOMLEFT}) {
        rect = {kLow, kLow, kHigh, kHigh};
        EXPECT_TRUE(DrawEdge(canvas.dc, &rect, EDGE_RAISED, flags | BF_MIDDLE | BF_ADJUST));
        rect = {kHigh, kHigh, kLow, kLow};
        EXPECT_TRUE(DrawEdge(canvas.dc, &rect, EDGE_RAISED, flags | BF_MIDDLE | BF_ADJUST));
    }
}

TEST_F(Edges, KeepToTheClip) {
    IntersectClipRect(canvas.dc, 0, 0, 3, 3);
    EXPECT_EQ(Drawn(EDGE_RAISED, BF_RECT),
              (Picture{"lll...", "lhh...", "lh....", "......", "......"}));
}

TEST_F(Edges, WrongArgumentsFail) {
    EXPECT_FALSE(DrawEdge(nullptr, &rect, EDGE_RAISED, BF_RECT));
    EXPECT_FALSE(DrawEdge(canvas.dc, nullptr, EDGE_RAISED, BF_RECT));
}

}  // namespace
}  // namespace vxgui::gdi
