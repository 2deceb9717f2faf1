#pragma once

#include <utility>
#include <vector>

#include "vxgui/base/Ref.h"
#include "vxgui/frame/modGdiplus.h"

namespace vxgui {

/// What all wrappers of flat objects share: a status that sticks, and the check that sets it. The
/// first one in an apartment starts GDI+, as the first of the library's objects does everywhere.
class VXGUI_API GpObject : public Object {
public:
    /// The status of the last flat call that failed; a successful call doesn't clear it.
    gdiplus::Status Status = gdiplus::Ok;

protected:
    GpObject();
    /// Keeps a failure, and answers whether there was none.
    bool Check(gdiplus::Status status) {
        if (status != gdiplus::Ok) Status = status;
        return status == gdiplus::Ok;
    }
    /// A new object around what a successful call made. That is null where GDI+ isn't there: the
    /// object is empty then.
    template <class Other, class Flat>
    static Ref<Other> Holding(Flat* made) {
        Ref<Other> result = New<Other>();
        result->SetHandle(made);
        return result;
    }
};

/// A wrapper that owns one flat object. `Self` is the class itself, with a `static constexpr auto
/// kDelete` (its flat destructor) and, for `Clone`, a `static constexpr auto kClone`.
template <class Self, class Flat>
class GpOwner : public GpObject {
public:
    /// The flat object, or null. `SetHandle` owns what it is given.
    void SetHandle(Flat*& handle) {
        static_cast<Self*>(this)->Dispose();
        handle_ = handle;
    }
    /// Deletes the flat object; errors don't count.
    void Dispose() {
        if (handle_) Self::kDelete(handle_);
        handle_ = nullptr;
    }
    Ref<Self> Clone() {
        Flat* copy = nullptr;
        if (!Check(Self::kClone(static_cast<Self*>(this)->Handle(), &copy))) return nullptr;
        return GpObject::Holding<Self>(copy);
    }

protected:
    ~GpOwner() override { Dispose(); }

    /// Takes what a creating call made when it succeeded, else keeps the object as it was. `made`
    /// is a reference so that the call may stand in the first argument.
    bool Adopt(gdiplus::Status status, Flat*& made) {
        if (!Check(status)) return false;
        static_cast<Self*>(this)->SetHandle(made);
        return true;
    }
    /// Adopts what `create(arguments..., &made)` makes.
    template <class Create, class... Args>
    bool Make(const Create& create, Args... arguments) {
        const KeepAlive keep(this);
        Flat* made = nullptr;
        const gdiplus::Status status = create(arguments..., &made);
        return Adopt(status, made);
    }
    /// The same, answering the new handle, or null.
    template <class Create, class... Args>
    Flat* MakeHandle(const Create& create, Args... arguments) {
        return Make(create, arguments...) ? handle_ : nullptr;
    }
    /// What `get(handle, &value)` stores, 0 when it fails.
    template <class Value, class Get>
    Value Asked(const Get& get) {
        const KeepAlive keep(this);
        Value value{};
        return Check(get(static_cast<Self*>(this)->Handle(), &value)) ? value : Value{};
    }

    Flat* handle_ = nullptr;
};

/// A private copy of a caller's array; empty for a count of 0 or less.
template <class T>
std::vector<T> CopyOf(const T* items, int32_t count) {
    if (count <= 0 || !items) return {};
    return std::vector<T>(items, items + count);
}

}  // namespace vxgui
