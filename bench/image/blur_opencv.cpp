#include <memory>
#include <opencv2/imgproc.hpp>

#include "bench/Beside.h"
#include "bench/Pixels.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

// Our blur reaches the radius, and its deviation is (radius + 1.5) / 3.
auto OpenCvs(int radius) {
    return [=] {
        cv::setNumThreads(1);
        auto pixels = std::make_shared<Pixels>(kSide, kSide);
        pixels->Set(StraightPicture(kSide, kSide, false));
        const cv::Mat picture(kSide, kSide, CV_8UC4, pixels->Bytes());
        return [=, blurred = cv::Mat()]() mutable {
            benchmark::DoNotOptimize(pixels->words.data());
            const double deviation = (radius + 1.5) / 3;
            cv::GaussianBlur(picture, blurred, {2 * radius + 1, 2 * radius + 1}, deviation,
                             deviation, cv::BORDER_CONSTANT);
        };
    };
}

const bool kAdded = [] {
    for (const int radius : {2, 4, 16, 64}) {
        Beside("blur", std::to_string(radius), "opencv", OpenCvs(radius));
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
