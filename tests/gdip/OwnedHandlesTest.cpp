#include <gtest/gtest.h>

#include "tests/gdip/FlatSpy.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpCachedBitmap.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpImageAttributes.h"
#include "vxgui/gdip/GpMatrix.h"
#include "vxgui/gdip/GpPath.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"

namespace vxgui {
namespace {

template <class Object>
struct Named;
template <>
struct Named<GpImage> {
    static constexpr const char* kDelete = "GdipDisposeImage";
};
template <>
struct Named<GpBitmap> {
    static constexpr const char* kDelete = "GdipDisposeImage";
};
template <>
struct Named<GpCachedBitmap> {
    static constexpr const char* kDelete = "GdipDeleteCachedBitmap";
};
template <>
struct Named<GpGraphics> {
    static constexpr const char* kDelete = "GdipDeleteGraphics";
};
template <>
struct Named<GpPen> {
    static constexpr const char* kDelete = "GdipDeletePen";
};
template <>
struct Named<GpBrush> {
    static constexpr const char* kDelete = "GdipDeleteBrush";
};
template <>
struct Named<GpPath> {
    static constexpr const char* kDelete = "GdipDeletePath";
};
template <>
struct Named<GpMatrix> {
    static constexpr const char* kDelete = "GdipDeleteMatrix";
};
template <>
struct Named<GpFont> {
    static constexpr const char* kDelete = "GdipDeleteFont";
};
template <>
struct Named<GpFontFamily> {
    static constexpr const char* kDelete = "GdipDeleteFontFamily";
};
template <>
struct Named<GpStringFormat> {
    static constexpr const char* kDelete = "GdipDeleteStringFormat";
};
template <>
struct Named<GpImageAttributes> {
    static constexpr const char* kDelete = "GdipDisposeImageAttributes";
};

template <class Object>
class OwnedHandles : public testing::Test {
protected:
    using Pointer = decltype(std::declval<Object&>().Handle());
    static Pointer HandleOf(uintptr_t number) { return reinterpret_cast<Pointer>(number); }
    static std::string Deleted(int number) {
        return std::string(Named<Object>::kDelete) + "(#" + std::to_string(number) + ")";
    }
    void Give(Pointer handle) {
        object_->SetHandle(handle);
        spy_.Taken();
    }

    /// Some classes make a flat object for each new one.
    static Ref<Object> Empty() {
        Ref<Object> object = New<Object>();
        object->Dispose();
        return object;
    }

    Ref<Object> object_ = Empty();  // before the spy: the first object starts GDI+
    test::FlatSpy spy_;
};

using All = testing::Types<GpImage, GpBitmap, GpCachedBitmap, GpGraphics, GpPen, GpBrush, GpPath,
                           GpMatrix, GpFont, GpFontFamily, GpStringFormat, GpImageAttributes>;
TYPED_TEST_SUITE(OwnedHandles, All);

TYPED_TEST(OwnedHandles, AreDeletedWhenOthersTakeTheirPlace) {
    this->Give(this->HandleOf(5));
    auto next = this->HandleOf(6);
    this->object_->SetHandle(next);
    EXPECT_EQ(this->spy_.Taken().find(this->Deleted(5)), 0u);
    EXPECT_EQ(this->object_->Handle(), next);
}

TYPED_TEST(OwnedHandles, AreDeletedOnceAndWithoutAnEyeToErrors) {
    this->Give(this->HandleOf(5));
    this->spy_.Answer(gdiplus::GenericError);
    this->object_->Dispose();
    EXPECT_EQ(this->spy_.Taken(), this->Deleted(5));
    EXPECT_EQ(this->object_->Status, gdiplus::Ok);
    this->object_->Dispose();
    EXPECT_EQ(this->spy_.Taken(), "");
}

TYPED_TEST(OwnedHandles, EndWithTheirObject) {
    this->Give(this->HandleOf(5));
    this->object_ = nullptr;
    EXPECT_EQ(this->spy_.Taken(), this->Deleted(5));
}

TYPED_TEST(OwnedHandles, GivenToTheirOwnObjectAreDead) {
    this->Give(this->HandleOf(5));
    auto own = this->object_->Handle();
    this->object_->SetHandle(own);
    EXPECT_EQ(this->spy_.Taken().find(this->Deleted(5)), 0u);
    EXPECT_EQ(this->object_->Handle(), this->HandleOf(5));
}

TYPED_TEST(OwnedHandles, AreMadeByReadingOfPensPathsAndMatricesOnly) {
    constexpr bool kMakes = std::is_same_v<TypeParam, GpPen> || std::is_same_v<TypeParam, GpPath> ||
                            std::is_same_v<TypeParam, GpMatrix>;
    EXPECT_EQ(this->object_->Handle(), this->HandleOf(kMakes ? test::FlatSpy::kMade : 0));
    EXPECT_EQ(this->spy_.Taken().empty(), !kMakes);
}

}  // namespace
}  // namespace vxgui
