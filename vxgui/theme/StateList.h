#pragma once

#include "vxgui/base/Ref.h"

namespace vxgui {

/// An item's fonts or styles by its states: none, a collection of its own, or one that it has in
/// common with other items until it hands it out or changes it.
template <class Collection>
class StateList {
public:
    StateList& operator=(const Ref<Collection>& own) {
        entries_ = own;
        common_ = false;
        return *this;
    }
    /// Takes what others have too; nobody may change it.
    void Share(const Ref<Collection>& common) {
        entries_ = common;
        common_ = true;
    }
    /// To be changed and handed out; made or copied where it has to be.
    const Ref<Collection>& Own() {
        if (!entries_) entries_ = New<Collection>();
        if (common_) *this = CopyOf(*entries_);
        return entries_;
    }

    /// To be read.
    const Ref<Collection>& Get() const { return entries_; }
    explicit operator bool() const { return static_cast<bool>(entries_); }

private:
    static Ref<Collection> CopyOf(const Collection& entries) {
        const Ref<Collection> copy = New<Collection>();
        for (int32_t n = 1; n <= entries.Count(); ++n)
            copy->AddItem(entries.Item(n), entries.KeyOf(n));
        return copy;
    }

    Ref<Collection> entries_;
    bool common_ = false;
};

}  // namespace vxgui
