#include "vxgui/pixels/BoxKernel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "tests/pixels/KernelWeights.h"

namespace vxgui {
namespace {

bool IsSymmetric(const std::vector<int64_t>& weights) {
    return std::equal(weights.begin(), weights.end(), weights.rbegin());
}

TEST(GaussianKernel, ReachesTheRadiusAndIsCentred) {
    for (int32_t radius = 0; radius <= 1000; ++radius) {
        const BoxKernel kernel = GaussianKernel(radius);
        const auto weights = test::WeightsOf(kernel);
        ASSERT_EQ(kernel.Reach(), radius);
        ASSERT_EQ(weights.size(), 2u * static_cast<size_t>(radius) + 1);
        ASSERT_TRUE(IsSymmetric(weights));
        ASSERT_EQ(std::accumulate(weights.begin(), weights.end(), int64_t{0}),
                  static_cast<int64_t>(kernel.Norm()));
        ASSERT_TRUE(std::is_sorted(weights.begin(), weights.begin() + radius + 1));
    }
}

TEST(GaussianKernel, SmallRadiiHaveTheseWeights) {
    EXPECT_EQ(test::WeightsOf(GaussianKernel(0)), (std::vector<int64_t>{1}));
    EXPECT_EQ(test::WeightsOf(GaussianKernel(1)), (std::vector<int64_t>{1, 2, 1}));
    EXPECT_EQ(test::WeightsOf(GaussianKernel(2)), (std::vector<int64_t>{1, 3, 4, 3, 1}));
    EXPECT_EQ(test::WeightsOf(GaussianKernel(3)), (std::vector<int64_t>{1, 3, 6, 7, 6, 3, 1}));
}

TEST(MeanKernel, WeighsAllAlikeAndHalvesTheEndsOfAnEvenWidth) {
    EXPECT_EQ(test::WeightsOf(MeanKernel(1)), (std::vector<int64_t>{1}));
    EXPECT_EQ(test::WeightsOf(MeanKernel(3)), (std::vector<int64_t>{1, 1, 1}));
    EXPECT_EQ(test::WeightsOf(MeanKernel(4)), (std::vector<int64_t>{1, 2, 2, 2, 1}));
    EXPECT_EQ(test::WeightsOf(MeanKernel(0)), (std::vector<int64_t>{1}));
    EXPECT_EQ(test::WeightsOf(MeanKernel(-3)), (std::vector<int64_t>{1}));
}

TEST(BoxKernel, SumsOfTheWidestFit64Bits) {
    for (const BoxKernel& kernel :
         {GaussianKernel(kLargestBlurRadius), MeanKernel(kLargestBlurRadius)}) {
        EXPECT_LT(static_cast<double>(kernel.Norm()) * UINT16_MAX, 9.2e18);
    }
}

}  // namespace
}  // namespace vxgui
