#pragma once

#include "vxgui/platform/gdiplus_formats.h"

namespace vxgui::gdiplus {

/// A list of one parameter, a long.
class Parameter {
public:
    Parameter(const GUID& id, UINT32 value) : value_(value) {
        list_.Count = 1;
        list_.Parameter[0] = {id, 1, EncoderParameterValueTypeLong, &value_};
    }
    Parameter(const Parameter&) = delete;
    Parameter& operator=(const Parameter&) = delete;

    const EncoderParameters* List() const { return &list_; }

private:
    UINT32 value_;
    EncoderParameters list_{};
};

}  // namespace vxgui::gdiplus
