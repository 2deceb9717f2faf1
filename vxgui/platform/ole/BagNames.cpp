#include "vxgui/platform/ole/BagNames.h"

#include <algorithm>

namespace vxgui::ole {
namespace {

/// What one large bag had isn't kept for all the small ones that follow.
constexpr size_t kMostKept = 1000;

bool IsAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char byte) { return static_cast<uint8_t>(byte) < 0x80; });
}

}  // namespace

void BagNames::Begin() {
    if (names_.size() > kMostKept) {
        names_.resize(1);
        names_[0].follower = 0;
        numbers_ = {};
    }
    last_ = 0;
    ++bag_;
}

size_t BagNames::Take(BagDecoder& from, size_t place) {
    size_t number = names_[last_].follower;
    std::string_view text = names_[number].text;
    if (number == 0 || !from.PassName(text)) {
        text = from.Name();
        number = KnownOrNew(text);
    }
    if (names_[number].bag == bag_) RefuseBag("The name \"" + String(text) + "\" stands twice");
    names_[last_].follower = number;
    last_ = number;
    names_[number].bag = bag_;
    names_[number].place = place;
    return number;
}

size_t BagNames::PlaceOf(std::string_view name) const {
    const size_t number = NumberOf(name);
    return number != kNone && names_[number].bag == bag_ ? names_[number].place : kNone;
}

size_t BagNames::NumberOf(std::string_view name) const {
    return numbers_.Find(name,
                         [this](size_t number) -> std::string_view { return names_[number].text; });
}

size_t BagNames::KnownOrNew(std::string_view name) {
    const bool ascii = IsAscii(name);
    const std::string folded = ascii ? std::string() : String(name).Lower().Utf8();
    const std::string_view text = ascii ? name : folded;
    const size_t known = NumberOf(text);
    return known != kNone ? known : Enter(text);
}

size_t BagNames::Enter(std::string_view text) {
    numbers_.MakeRoom();
    names_.push_back({.text = std::string(text)});
    numbers_.Add(std::string_view(names_.back().text), names_.size() - 1);
    return names_.size() - 1;
}

}  // namespace vxgui::ole
