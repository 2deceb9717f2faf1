#pragma once

#include "vxgui/base/Error.h"

namespace vxgui::test {

/// The number of the error that a call raises; 0 for none.
template <class Call>
int32_t ErrorOf(Call&& call) {
    try {
        call();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

}  // namespace vxgui::test
