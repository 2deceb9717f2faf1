#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <vector>

#include "tests/pixels/KernelWeights.h"
#include "vxgui/pixels/Blur.h"

// How far the blur is from a true Gaussian of the same variance: the table of docs/blur.md.
namespace vxgui {
namespace {

double Variance(const BoxKernel& kernel) {
    double variance = 0;
    for (int32_t width : kernel.widths) variance += (double(width) * width - 1) / 12;
    return variance;
}

/// The Gaussian at whole pixels from -extent to extent, adding up to 1.
std::vector<double> Gaussian(double variance, int32_t extent) {
    std::vector<double> weights;
    double sum = 0;
    for (int32_t x = -extent; x <= extent; ++x) {
        weights.push_back(std::exp(-double(x) * x / (2 * variance)));
        sum += weights.back();
    }
    for (double& weight : weights) weight /= sum;
    return weights;
}

/// Largest differences, in levels of 255: of a white line and of a white half plane, blurred.
struct Accuracy {
    double line = 0, edge = 0;
};

Accuracy AccuracyOf(int32_t radius) {
    const BoxKernel kernel = GaussianKernel(radius);
    const auto weights = test::WeightsOf(kernel);
    const int32_t extent = 3 * radius + 3;
    const auto gaussian = Gaussian(Variance(kernel), extent);
    Accuracy accuracy;
    double difference = 0;
    for (int32_t x = -extent; x <= extent; ++x) {
        const double ours = std::abs(x) > radius
                                ? 0
                                : static_cast<double>(weights[static_cast<size_t>(x + radius)]) /
                                      static_cast<double>(kernel.Norm());
        const double off = ours - gaussian[static_cast<size_t>(x + extent)];
        difference += off;
        accuracy.line = std::max(accuracy.line, 255 * std::abs(off));
        accuracy.edge = std::max(accuracy.edge, 255 * std::abs(difference));
    }
    return accuracy;
}

TEST(BlurAccuracy, KernelsStayCloseToAGaussianAtEveryRadius) {
    std::printf("| radius | sigma | line | edge |\n|---:|---:|---:|---:|\n");
    for (int32_t radius = 1; radius <= 1000; ++radius) {
        const Accuracy accuracy = AccuracyOf(radius);
        const bool shown = radius <= 16 || (radius <= 100 && radius % 20 == 0) || radius % 250 == 0;
        if (shown) {
            std::printf("| %d | %.2f | %.2f | %.2f |\n", radius,
                        std::sqrt(Variance(GaussianKernel(radius))), accuracy.line, accuracy.edge);
        }
        EXPECT_LE(accuracy.edge, radius == 1 ? 8.2 : radius == 2 ? 4.6 : 3.2) << radius;
        EXPECT_LE(accuracy.line, 18.5 / radius) << radius;
    }
}

TEST(BlurAccuracy, BlurredEdgeIsWhatTheKernelPromises) {
    for (int32_t radius : {1, 2, 3, 5, 8, 13, 46, 60, 200, 1000}) {
        const int32_t extent = 3 * radius + 3;
        std::vector<ARGB> row(static_cast<size_t>(2 * extent + 1));
        for (size_t i = static_cast<size_t>(extent); i < row.size(); ++i) row[i].Alpha = 255;
        const auto width = static_cast<int32_t>(row.size());
        Blur(row, width, {0, 0, width - 1, 0}, GaussianKernel(radius), GaussianKernel(0));

        const auto gaussian = Gaussian(Variance(GaussianKernel(radius)), extent);
        double inside = 0, worst = 0;
        // As far as the end of the white half, behind which all is clear, isn't seen.
        for (int32_t x = 0; x < width - radius - 1; ++x) {
            inside += gaussian[static_cast<size_t>(x)];
            worst = std::max(worst, std::abs(row[static_cast<size_t>(x)].Alpha - 255 * inside));
        }
        EXPECT_LE(worst, AccuracyOf(radius).edge + 0.51) << "radius " << radius;
    }
}

TEST(BlurAccuracy, DeviationGrowsWithTheRadiusInEvenSteps) {
    double before = 0;
    for (int32_t radius = 1; radius <= 1000; ++radius) {
        const double deviation = std::sqrt(Variance(GaussianKernel(radius)));
        EXPECT_NEAR(deviation, (radius + 1.5) / 3, 0.13) << radius;
        EXPECT_GT(deviation, before);
        before = deviation;
    }
}

}  // namespace
}  // namespace vxgui
