#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vxgui {

/// Keeps a listener subscribed for as long as it is held. It may outlive what it listens to.
using Subscription = std::shared_ptr<const void>;

/// Something that listeners can be told of, each in the order of its subscription. An argument
/// by reference lets them answer. A listener may subscribe and unsubscribe while it is called.
template <class... Arguments>
class Event {
public:
    using Listener = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription Subscribe(Listener listener) {
        auto kept = std::make_shared<const Listener>(std::move(listener));
        std::erase_if(listeners_, [](const auto& other) { return other.expired(); });
        listeners_.push_back(kept);
        return kept;
    }

    void Raise(Arguments... arguments) const {
        // Over a copy, as a call may change the list.
        const auto listeners = listeners_;
        for (const auto& listener : listeners) {
            if (const auto kept = listener.lock()) (*kept)(arguments...);
        }
    }

private:
    std::vector<std::weak_ptr<const Listener>> listeners_;
};

}  // namespace vxgui
