#include "vxgui/pixels/ShortKernel.h"

#include <gtest/gtest.h>

#include "tests/pixels/KernelWeights.h"

namespace vxgui {
namespace {

/// All kernels of up to `kWidest` pixels a box that have a middle.
template <class Check>
void ForEachKernel(Check check) {
    constexpr int32_t kWidest = 18;
    for (int32_t a = 1; a <= kWidest; ++a) {
        for (int32_t b = 1; b <= kWidest; ++b) {
            for (int32_t c = 1; c <= kWidest; ++c) {
                if ((a + b + c) % 2 == 1) check(BoxKernel{{a, b, c}});
            }
        }
    }
}

TEST(ShortKernel, HasTheWeightsOfTheBoxesTimesAPowerOfTwo) {
    ForEachKernel([](const BoxKernel& kernel) {
        const auto made = ShortKernel::Of(kernel);
        if (!made) return;
        const auto weights = test::WeightsOf(kernel);
        ASSERT_EQ(weights.size(), 2 * made->reach + 1);
        EXPECT_EQ(made->scale & (made->scale - 1), 0);
        EXPECT_EQ(made->norm, kernel.Norm() * made->scale);
        for (size_t i = 0; i <= made->reach; ++i) {
            EXPECT_EQ(made->weights[i], weights[made->reach + i] * made->scale);
            EXPECT_EQ(made->weights[i], weights[made->reach - i] * made->scale);
        }
    });
}

TEST(ShortKernel, DividesAllThatItMayBeAskedFor) {
    ForEachKernel([](const BoxKernel& kernel) {
        const auto made = ShortKernel::Of(kernel);
        if (!made) return;
        for (uint32_t dividend = 0; dividend < 256u * made->norm; dividend += made->scale) {
            ASSERT_EQ(made->Quotient(static_cast<uint16_t>(dividend)), dividend / made->norm)
                << dividend << " by " << made->norm;
        }
    });
}

TEST(ShortKernel, ServesTheSmallRadii) {
    for (int32_t radius = 0; radius <= 7; ++radius) {
        EXPECT_TRUE(ShortKernel::Of(GaussianKernel(radius))) << radius;
    }
    EXPECT_FALSE(ShortKernel::Of(GaussianKernel(8))) << "16 bits don't do for 252";
    EXPECT_FALSE(ShortKernel::Of(MeanKernel(19))) << "longer than is quick";
}

}  // namespace
}  // namespace vxgui
