#include <memory>
#include <opencv2/imgproc.hpp>

#include "bench/Beside.h"
#include "bench/Pixels.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 1024;

// To hue, lightness and saturation in bytes, each through a table, and back. The alpha is taken off
// and put back.
auto OpenCvs() {
    cv::setNumThreads(1);
    auto pixels = std::make_shared<Pixels>(kSide, kSide);
    pixels->Set(StraightPicture(kSide, kSide, false));
    cv::Mat tables(1, 256, CV_8UC3);
    for (int i = 0; i < 256; ++i) {
        tables.at<cv::Vec3b>(i) = {cv::saturate_cast<uint8_t>((i + 20) % 180),
                                   cv::saturate_cast<uint8_t>(i + (255 - i) * 0.15),
                                   cv::saturate_cast<uint8_t>(i * 1.3)};
    }
    const cv::Mat picture(kSide, kSide, CV_8UC4, pixels->Bytes());
    return [=, colors = cv::Mat(), hls = cv::Mat(), adjusted = cv::Mat(),
            result = cv::Mat()]() mutable {
        benchmark::DoNotOptimize(pixels->words.data());
        cv::cvtColor(picture, hls, cv::COLOR_BGR2HLS);
        cv::LUT(hls, tables, adjusted);
        cv::cvtColor(adjusted, colors, cv::COLOR_HLS2BGR);
        result.create(kSide, kSide, CV_8UC4);
        const cv::Mat sources[] = {colors, picture};
        constexpr int kPairs[] = {0, 0, 1, 1, 2, 2, 6, 3};
        cv::mixChannels(sources, 2, &result, 1, kPairs, 4);
    };
}

const bool kAdded = Beside("hls-all", "1024", "opencv", OpenCvs);

}  // namespace
}  // namespace vxgui::bench
