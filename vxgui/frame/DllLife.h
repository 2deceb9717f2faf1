#pragma once

#include "vxgui/base/Object.h"

namespace vxgui {

/// Holds DrawDib and GDI+ open for the life of an apartment's set-up. All its work is the side
/// effect of existing.
class DllLife : public Object {
public:
    DllLife();

protected:
    ~DllLife() override;
};

}  // namespace vxgui
