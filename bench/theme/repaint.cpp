#include "bench/Beside.h"
#include "bench/Roof.h"
#include "bench/theme/Scene.h"

namespace vxgui::bench {
namespace {

auto Ours() {
    return [] {
        auto target = std::make_shared<HostTarget>(Scene::kWidth, Scene::kHeight);
        auto scene = std::make_shared<Scene>();
        return [=] { scene->Draw(target->dc); };
    };
}

auto Roof() {
    return [] {
        auto target = std::make_shared<Pixels>(Scene::kWidth, Scene::kHeight);
        auto source = std::make_shared<Pixels>(Scene::kWidth, Scene::kHeight);
        return [=] {
            StreamMix(target->words.data(), source->words.data(), target->words.size());
        };
    };
}

const bool kAdded = [] {
    Beside("repaint", std::to_string(Scene::kItems), "ours", Ours());
    Beside("repaint", std::to_string(Scene::kItems), "roof", Roof());
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
