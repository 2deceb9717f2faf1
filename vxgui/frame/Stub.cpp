#include "vxgui/frame/Stub.h"

namespace vxgui {

namespace {

constinit std::atomic<StubNode*> gStubs{nullptr};

}  // namespace

void EnlistStub(StubNode& node) {
    if (node.listed.test_and_set(std::memory_order_acq_rel)) return;
    node.next = gStubs.load(std::memory_order_relaxed);
    while (!gStubs.compare_exchange_weak(node.next, &node, std::memory_order_release,
                                         std::memory_order_relaxed)) {
    }
}

void UnbindAllStubs() {
    for (const StubNode* node = gStubs.load(std::memory_order_acquire); node; node = node->next) {
        node->unbind();
    }
}

}  // namespace vxgui
