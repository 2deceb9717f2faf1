#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

#include "vxgui/platform/gdi/HandleSlot.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// What a handle stands for.
enum class GdiKind : uint8_t { DeviceContext, Bitmap, Brush, Pen, Font, Region, Icon, DibDrawer };

/// Base of everything that a handle names. Its reference count lives in its slot of the handle
/// table, so that a look-up by handle can take a reference without touching freed memory.
class GdiObject {
public:
    explicit GdiObject(GdiKind kind) : kind_(kind) {}
    virtual ~GdiObject() = default;
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;

    GdiKind Kind() const { return kind_; }
    HGDIOBJ Handle() const { return handle_; }

    /// Stock objects and a host context's own bitmap can't be deleted by their handle.
    bool Permanent() const { return permanent_; }
    void MakePermanent() { permanent_ = true; }

    /// Writes the published record (`GetObjectA`): bytes written, 0 on failure; with a null
    /// `buffer` the record's size.
    virtual int Record(int size, void* buffer) const;

    void AddReference() { slot_->AddReference(); }
    void Release() { slot_->Release(); }

    /// A selection is a context's claim: deletion waits until the last one is given up.
    void AddSelection() { Add(selections_, 1u); }
    void RemoveSelection();
    bool Selected() const { return (selections_.load() & ~kDoomed) != 0; }
    /// Deletes the handle, now or when the last context deselects the object.
    void Delete();

protected:
    /// The last context has deselected the object.
    virtual void Deselected() {}
    /// Neither a handle nor a reference is left.
    virtual void Drop() { delete this; }

private:
    friend struct HandleSlot;
    friend class HandleTable;
    static constexpr uint32_t kDoomed = 0x80000000u;

    const GdiKind kind_;
    bool permanent_ = false;
    std::atomic<uint32_t> selections_{0};
    HGDIOBJ handle_ = nullptr;
    HandleSlot* slot_ = nullptr;
};

/// A counted reference to an object of the table.
template <class T>
class GdiRef {
public:
    GdiRef() = default;
    GdiRef(std::nullptr_t) {}
    explicit GdiRef(T* object) : object_(object) {
        if (object_) object_->AddReference();
    }
    /// Takes over a reference that was counted already.
    static GdiRef Adopt(T* object) {
        GdiRef ref;
        ref.object_ = object;
        return ref;
    }
    GdiRef(const GdiRef& other) : GdiRef(other.object_) {}
    GdiRef(GdiRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    GdiRef& operator=(GdiRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~GdiRef() {
        if (object_) object_->Release();
    }

    /// Hands its reference over, uncounted.
    T* Detach() { return std::exchange(object_, nullptr); }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

/// A context's hold on an object that is selected in it.
template <class T>
class Selection {
public:
    Selection() = default;
    explicit Selection(GdiRef<T> object) : object_(std::move(object)) {
        if (object_) object_->AddSelection();
    }
    Selection(const Selection& other) : Selection(other.object_) {}
    Selection(Selection&& other) noexcept : object_(std::move(other.object_)) {}
    Selection& operator=(Selection other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Selection() {
        if (object_) object_->RemoveSelection();
    }

    T* get() const { return object_.get(); }
    T* operator->() const { return object_.get(); }
    T& operator*() const { return *object_; }
    explicit operator bool() const { return static_cast<bool>(object_); }
    HGDIOBJ Handle() const { return object_ ? object_->Handle() : nullptr; }

private:
    GdiRef<T> object_;
};

}  // namespace vxgui::gdi
