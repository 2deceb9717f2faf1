#pragma once

#include <atomic>
#include <cstdint>

#include "vxgui/base/Export.h"

namespace vxgui {

/// The root of every reference-counted class. An object is born with one reference, which
/// `New` hands to the first `Ref`; the last `Release` destroys it.
class VXPLATFORM_API Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    void AddRef() const noexcept { references_.fetch_add(1, std::memory_order_relaxed); }
    void Release() const noexcept;

protected:
    virtual ~Object();

private:
    mutable std::atomic<int32_t> references_{1};
};

/// Holds an object for the length of a public operation, so that an operation that drops the
/// last outside reference does not destroy the object under itself.
class KeepAlive {
public:
    explicit KeepAlive(const Object* object) noexcept : object_(object) { object_->AddRef(); }
    ~KeepAlive() { object_->Release(); }
    KeepAlive(const KeepAlive&) = delete;
    KeepAlive& operator=(const KeepAlive&) = delete;

private:
    const Object* object_;
};

}  // namespace vxgui
