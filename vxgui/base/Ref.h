#pragma once

#include <type_traits>
#include <utility>

#include "vxgui/base/Object.h"

namespace vxgui {

/// A shared reference to a reference-counted object; `nullptr` is "none".
template <class T>
class Ref {
public:
    Ref() noexcept = default;
    Ref(std::nullptr_t) noexcept {}
    explicit Ref(T* object) noexcept : object_(object) { Hold(); }
    Ref(const Ref& other) noexcept : object_(other.object_) { Hold(); }
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    Ref(const Ref<U>& other) noexcept : object_(other.get()) {
        Hold();
    }
    ~Ref() { Drop(); }

    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that the caller already owns.
    static Ref Adopt(T* object) noexcept {
        Ref ref;
        ref.object_ = object;
        return ref;
    }

    T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    T& operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

    friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.object_ == b.object_; }
    friend bool operator==(const Ref& a, std::nullptr_t) noexcept { return a.object_ == nullptr; }

private:
    void Hold() const noexcept {
        if (object_) object_->AddRef();
    }
    void Drop() const noexcept {
        if (object_) object_->Release();
    }

    T* object_ = nullptr;
};

/// Makes an object and hands out its first reference.
template <class T, class... Args>
Ref<T> New(Args&&... args) {
    return Ref<T>::Adopt(new T(std::forward<Args>(args)...));
}

}  // namespace vxgui
