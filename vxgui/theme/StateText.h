#pragma once

#include "vxgui/base/String.h"

namespace vxgui {

/// The name of a state, under which an item keeps its font and style. That of a state that there
/// is isn't copied.
class VXGUI_LOCAL StateText {
public:
    explicit StateText(int32_t state) : known_(Known(state)) {
        if (!known_) other_ = "State_#" + String::FromInt(state);
    }
    StateText(const StateText&) = delete;
    StateText& operator=(const StateText&) = delete;

    const String& name() const { return known_ ? *known_ : other_; }

private:
    /// Null for what is no state.
    static const String* Known(int32_t state);

    const String* const known_;
    String other_;
};

}  // namespace vxgui
