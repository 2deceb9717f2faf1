#include "vxgui/base/VariantValue.h"

#include <gtest/gtest.h>

#include <functional>

#include "vxgui/base/Error.h"

namespace vxgui {
namespace {

int32_t NumberOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

struct IntegerRow {
    Variant value;
    int32_t integer;
};
class IntegerValue : public testing::TestWithParam<IntegerRow> {};
INSTANTIATE_TEST_SUITE_P(, IntegerValue,
                         testing::Values(IntegerRow{{}, 0}, IntegerRow{true, -1},
                                         IntegerRow{false, 0}, IntegerRow{7, 7},
                                         IntegerRow{2.5f, 2}, IntegerRow{3.5, 4},
                                         IntegerRow{-2147483648.0, INT32_MIN}, IntegerRow{"12", 12},
                                         IntegerRow{" -2.5 ", -2}, IntegerRow{"1,234", 1234},
                                         IntegerRow{"&hFFFF", -1}));

TEST_P(IntegerValue, IsConverted) {
    EXPECT_EQ(IntegerFrom(GetParam().value, "test"), GetParam().integer);
}

TEST(VariantValue, WhatIsNoNumberRaises) {
    for (const Variant& value : {Variant("tall"), Variant(""), Variant(ByteArray{1}),
                                 Variant(VariantArray{}), Variant(Ref<Object>())}) {
        EXPECT_EQ(NumberOf([&] { IntegerFrom(value, "test"); }), 13);
        EXPECT_EQ(NumberOf([&] { ByteFrom(value, "test"); }), 13);
    }
    EXPECT_EQ(NumberOf([] { IntegerFrom(2147483648.0, "test"); }), 6);
    EXPECT_EQ(NumberOf([] { IntegerFrom("1e300", "test"); }), 6);
}

TEST(VariantValue, BytesAreChecked) {
    EXPECT_EQ(ByteFrom(0, "test"), 0);
    EXPECT_EQ(ByteFrom(255, "test"), 255);
    EXPECT_EQ(ByteFrom(true, "test"), 255);
    EXPECT_EQ(ByteFrom({}, "test"), 0);
    EXPECT_EQ(NumberOf([] { ByteFrom(256, "test"); }), 6);
    EXPECT_EQ(NumberOf([] { ByteFrom(-1, "test"); }), 6);
}

TEST(VariantValue, TextSaysTheValue) {
    EXPECT_EQ(TextFrom("text", "test"), String("text"));
    EXPECT_EQ(TextFrom(-12, "test"), String("-12"));
    EXPECT_EQ(TextFrom(true, "test"), String("True"));
    EXPECT_EQ(TextFrom(false, "test"), String("False"));
    EXPECT_EQ(TextFrom(0.25f, "test"), String("0.25"));
    EXPECT_EQ(TextFrom(1e15, "test"), String("1e+15"));
    EXPECT_EQ(TextFrom({}, "test"), String());
    EXPECT_EQ(NumberOf([] { TextFrom(ByteArray{1}, "test"); }), 13);
}

}  // namespace
}  // namespace vxgui
