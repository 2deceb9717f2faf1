#include "vxgui/base/Event.h"

#include <gtest/gtest.h>

namespace vxgui {
namespace {

TEST(Event, ListenersAreCalledInTheOrderOfTheirSubscription) {
    Event<int> event;
    std::vector<int> calls;
    const Subscription first = event.Subscribe([&](int value) { calls.push_back(value); });
    const Subscription second = event.Subscribe([&](int value) { calls.push_back(-value); });
    event.Raise(7);
    EXPECT_EQ(calls, (std::vector<int>{7, -7}));
}

TEST(Event, AListenerLastsAsLongAsItsSubscription) {
    Event<> event;
    int calls = 0;
    {
        const Subscription subscription = event.Subscribe([&] { ++calls; });
        event.Raise();
    }
    event.Raise();
    EXPECT_EQ(calls, 1);
}

TEST(Event, AReferenceCarriesTheAnswerBack) {
    Event<bool&> event;
    const Subscription subscription = event.Subscribe([](bool& cancel) { cancel = true; });
    bool cancel = false;
    event.Raise(cancel);
    EXPECT_TRUE(cancel);
}

TEST(Event, ListenersMayComeAndGoDuringACall) {
    Event<> event;
    int calls = 0;
    Subscription second;
    Subscription third;
    const Subscription first = event.Subscribe([&] {
        second = nullptr;
        if (!third) third = event.Subscribe([&] { calls += 100; });
    });
    second = event.Subscribe([&] { calls += 1; });
    event.Raise();
    EXPECT_EQ(calls, 0);
    event.Raise();
    EXPECT_EQ(calls, 100);
}

TEST(Event, ASubscriptionMayOutliveItsEvent) {
    Subscription subscription;
    {
        Event<> event;
        subscription = event.Subscribe([] {});
    }
    EXPECT_TRUE(subscription);
}

}  // namespace
}  // namespace vxgui
