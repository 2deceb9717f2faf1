#include <gtest/gtest.h>

#include "vxgui/colour/PictureView.h"

namespace vxgui {
namespace {

PictureView ViewOf(int32_t pictureWidth, int32_t pictureHeight) {
    PictureView view;
    view.PictureSize(pictureWidth, pictureHeight);
    view.ViewSize(100, 50);
    return view;
}

void DragBy(PictureView& view, double x, double y) {
    view.StartDrag(0, 0);
    view.Drag(x, y);
    view.EndDrag();
    view.EnforceBounds();
}

TEST(PictureView, StopsAtThePicturesEdges) {
    PictureView view = ViewOf(300, 200);
    DragBy(view, 30, 20);
    EXPECT_EQ(view.PanX(), 0);
    EXPECT_EQ(view.PanY(), 0);
    DragBy(view, -1000, -1000);
    EXPECT_EQ(view.PanX(), 200);
    EXPECT_EQ(view.PanY(), 150);
}

TEST(PictureView, OfASmallerPictureGoesToANegativePlace) {
    PictureView view = ViewOf(60, 40);
    DragBy(view, 5, 5);
    EXPECT_EQ(view.PanX(), -40);
    EXPECT_EQ(view.PanY(), -10);
}

TEST(PictureView, PlacesAreRoundedAndAPlaceWithoutAMoveIsNone) {
    PictureView view = ViewOf(300, 200);
    view.StartDrag(10.4, 10.4);
    EXPECT_FALSE(view.Drag(10, 10));
    EXPECT_TRUE(view.Drag(6.6, 4.4));
    EXPECT_EQ(view.PanX(), 3);  // 3.4
    EXPECT_EQ(view.PanY(), 6);  // 5.6
    view.EndDrag();
    EXPECT_FALSE(view.Drag(0, 0));
}

TEST(PictureView, ZoomedOutItEndsWhereItsLargerPartDoes) {
    PictureView view = ViewOf(300, 200);
    DragBy(view, -1000, -1000);
    view.ZoomUp();
    view.EnforceBounds();
    EXPECT_EQ(view.PanX(), 100);
    EXPECT_EQ(view.PanY(), 100);
    EXPECT_EQ(view.ShownWidth(), 200);
}

TEST(PictureView, APlaceOfALargerPictureIsForgotten) {
    PictureView view = ViewOf(300, 200);
    DragBy(view, -1000, -1000);
    view.PictureSize(150, 100);
    EXPECT_EQ(view.PanX(), 0);
    EXPECT_EQ(view.PanY(), 0);
}

}  // namespace
}  // namespace vxgui
