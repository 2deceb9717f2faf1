#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"

namespace vxgui {

using ByteArray = std::vector<uint8_t>;

class Variant;
using VariantArray = std::vector<Variant>;

/// A value of any of the kinds that cross the interface untyped. A default one is empty.
class Variant {
public:
    using Storage = std::variant<std::monostate, bool, int32_t, float, double, String, ByteArray,
                                 Ref<Object>, VariantArray>;

    Variant() = default;
    Variant(bool value) : value_(value) {}
    Variant(int32_t value) : value_(value) {}
    Variant(float value) : value_(value) {}
    Variant(double value) : value_(value) {}
    Variant(const char* text) : value_(String(text)) {}
    Variant(const char16_t* text) : value_(String(text)) {}
    Variant(String text) : value_(std::move(text)) {}
    Variant(ByteArray bytes) : value_(std::move(bytes)) {}
    Variant(VariantArray items) : value_(std::move(items)) {}
    template <class T>
    Variant(const Ref<T>& object) : value_(Ref<Object>(object)) {}

    bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
    template <class T>
    bool Is() const {
        return std::holds_alternative<T>(value_);
    }
    /// The value when it is of kind `T`, else null.
    template <class T>
    const T* As() const {
        return std::get_if<T>(&value_);
    }
    const Storage& storage() const { return value_; }

    friend bool operator==(const Variant&, const Variant&) = default;

private:
    Storage value_;
};

}  // namespace vxgui
