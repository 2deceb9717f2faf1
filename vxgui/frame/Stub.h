#pragma once

#include <atomic>

#include "vxgui/platform/corehlp.h"

namespace vxgui {

/// A stub in the list of those that were ever to be bound.
struct StubNode {
    void (*unbind)();
    StubNode* next = nullptr;
    std::atomic_flag listed{};
};
VXGUI_API void EnlistStub(StubNode& node);

/// Makes every stub of the process unbound again, so that the next call binds anew: for tests,
/// which act out other companions. No other thread may be in a stub meanwhile.
void UnbindAllStubs();

/// A function that is bound late: a pointer that starts at the stub's own unbound body and is
/// replaced by the target on the first call that finds one, so that each later call is one jump,
/// without a look-up. While there is no target a call answers 0, and the next one tries again.
/// The binding is of the whole process. Two threads that bind at once store the same target.
///
/// `Binder` names the target: `static bool Bind(corehlp::Slot place)` stores its address in the
/// place, or answers false. A binder with a `FirstCall(place, arguments...)` does the whole work
/// of the unbound body itself.
template <class Binder, class Signature>
class Stub;

template <class Binder, class R, class... A>
class Stub<Binder, R(A...)> {
public:
    R operator()(A... arguments) const {
        return target_.load(std::memory_order_acquire)(arguments...);
    }

    bool IsBound() const { return target_.load(std::memory_order_acquire) != &Unbound; }
    /// Where the helper library's bind service writes the target.
    static corehlp::Slot Place() {
        EnlistStub(node_);
        return &target_;
    }

private:
    using Target = R (*)(A...);
    static_assert(sizeof(std::atomic<Target>) == sizeof(void*));

    static R Unbound(A... arguments) {
        if constexpr (requires { Binder::FirstCall(Place(), arguments...); }) {
            return Binder::FirstCall(Place(), arguments...);
        } else {
            if (!Binder::Bind(Place())) return R();
            const Target target = target_.load(std::memory_order_acquire);
            return target != &Unbound ? target(arguments...) : R();
        }
    }

    static void Unbind() { target_.store(&Unbound, std::memory_order_release); }

    static inline constinit std::atomic<Target> target_{&Unbound};
    static inline constinit StubNode node_{&Unbind};
};

}  // namespace vxgui
