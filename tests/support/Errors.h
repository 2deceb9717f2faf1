#pragma once

#include <cstdint>

#include "vxgui/base/Error.h"

namespace vxgui::test {

/// The number of the error that `call` raises, 0 when it raises none.
template <class Call>
int32_t RaisedBy(Call&& call) {
    try {
        call();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

}  // namespace vxgui::test
